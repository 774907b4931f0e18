#include "disk/settings_file.h"

#include "core/escapes.h"
#include "core/file_names.h"

#include <chrono>
#include <tuple>
#include <utility>

namespace orvane {

namespace {

/// The signs that shape a line.
constexpr TextView lineSigns = u"=[]";

/// The first unescaped `sign` of a line, or npos.
std::size_t FindSign(TextView line, char16_t sign)
{
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == u'\\')
            ++i;
        else if (line[i] == sign)
            return i;
    }
    return TextView::npos;
}

/// Whether the file was written so long ago that a further writing gives it another time.
bool IsSettled(const FileFacts& facts)
{
    using std::chrono::system_clock;
    const std::chrono::nanoseconds written(facts.Written);
    return system_clock::now().time_since_epoch() - written > std::chrono::seconds(1);
}

} // namespace

SettingsTable ReadSettings(std::string_view bytes)
{
    const Text text = FromUtf8(bytes);
    SettingsTable settings;
    Text section;
    for (TextView rest = text; !rest.empty();) {
        const TextView line = TakeUntil(rest, u'\n');
        if (line.starts_with(u'[')) {
            section = Unescaped(line.substr(1, FindSign(line.substr(1), u']')));
        } else if (const std::size_t sign = FindSign(line, u'='); sign != TextView::npos) {
            settings[{section, Unescaped(line.substr(0, sign))}] = Unescaped(line.substr(sign + 1));
        }
    }
    return settings;
}

std::string WriteSettings(const SettingsTable& settings)
{
    Text text;
    const Text* section = nullptr;
    for (const auto& [name, value] : settings) {
        if (section == nullptr || *section != name.first)
            text += Join({u"[", Escaped(name.first, lineSigns), u"]\n"});
        section = &name.first;
        text += Join({Escaped(name.second, lineSigns), u"=", Escaped(value, lineSigns), u"\n"});
    }
    return ToUtf8(text);
}

SettingsFile::SettingsFile(FileStore& files, Text folder)
    : m_files(files), m_folder(std::move(folder))
{
}

Text SettingsFile::Get(TextView section, TextView key, TextView otherwise,
                       TextView application) const
{
    const SettingsTable* settings = Find(PathOf(application));
    if (settings == nullptr)
        return Text(otherwise);
    const auto found = settings->find({Text(section), Text(key)});
    return found == settings->end() ? Text(otherwise) : found->second;
}

/// The settings in the file as it is now; null when it cannot be read. They last until the next
/// call.
const SettingsTable* SettingsFile::Find(const Text& path) const
{
    const auto facts = m_files.Facts(path);
    if (facts && *facts == m_known.Facts && path == m_known.Path)
        return &m_known.Settings;
    const auto bytes = m_files.Read(path);
    m_known = {};
    if (FaultIn(bytes))
        return nullptr;
    m_known.Settings = ReadSettings(ValueIn(bytes));
    // One written just now may be written again without its time telling.
    if (facts && IsSettled(*facts))
        std::tie(m_known.Path, m_known.Facts) = std::pair(path, *facts);
    return &m_known.Settings;
}

void SettingsFile::Put(TextView section, TextView key, TextView value, TextView application)
{
    const Done folder = MakeFolders(m_files, m_folder, Access::OwnerAlone);
    if (FaultIn(folder))
        return;
    const Text path = PathOf(application);
    const auto lock = m_files.LockFolder(m_folder);
    const auto bytes = m_files.Read(path);
    const Fault* fault = FaultIn(bytes);
    // A file that is there but cannot be read is left alone: writing would drop its other settings.
    if (fault && *fault != Fault::FileNotFound && *fault != Fault::PathNotFound)
        return;
    SettingsTable settings = fault ? SettingsTable() : ReadSettings(ValueIn(bytes));
    settings[{Text(section), Text(key)}] = value;
    // A failure is passed over: the file keeps what it had.
    std::ignore = m_files.Replace(path, WriteSettings(settings));
}

Text SettingsFile::PathOf(TextView application) const
{
    return PathIn(m_folder, Text(application) + u".conf");
}

} // namespace orvane
