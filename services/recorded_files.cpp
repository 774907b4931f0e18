#include "services/recorded_files.h"

#include "core/file_names.h"
#include "services/file_complaints.h"

#include <limits>

namespace orvane {

std::optional<Complaint> CheckNoBlank(TextView fileName, FileRole role)
{
    if (fileName.find(u' ') == TextView::npos)
        return std::nullopt;
    const TextView word = role == FileRole::Image ? u"image" : u"sound";
    return AboutFiles(Join({u"This special effect does not allow ", word,
                            u" filenames containing space characters.\r\nPlease rename the ", word,
                            u" or select another ", word, u"."}),
                      {Text(fileName)});
}

void RecordRequiredFile(RequiredFiles& files, TextView source, TextView name)
{
    const auto slot = static_cast<std::size_t>(files.RequiredFileCount);
    if (slot < files.RequiredFileNames.size()) {
        files.RequiredFileSources[slot] = source;
        files.RequiredFileNames[slot] = name;
    }
    if (files.RequiredFileCount < std::numeric_limits<std::int16_t>::max())
        ++files.RequiredFileCount;
}

Text SourceOf(const RequiredFiles& files, TextView name)
{
    for (std::size_t slot = files.RequiredFileNames.size(); slot-- > 0;)
        if (!name.empty() && files.RequiredFileNames[slot] == name)
            return files.RequiredFileSources[slot];
    return {};
}

void TakeSourcesFrom(RequiredFiles& required, const FileStore& files, TextView folder)
{
    for (std::size_t slot = 0; slot < required.RequiredFileNames.size(); ++slot) {
        const Text& name = required.RequiredFileNames[slot];
        if (name.empty() || !required.RequiredFileSources[slot].empty())
            continue;
        if (Text path = PathIn(folder, name); files.FileExists(path))
            required.RequiredFileSources[slot] = std::move(path);
    }
}

void RequireFile(RequiredFiles& files, std::size_t slot, TextView name)
{
    files.RequiredFileNames.at(slot) = name;
    Text& source = files.RequiredFileSources.at(slot);
    if (name.empty() || GetFileName(source) != name)
        source.clear();
}

void RequireBrowsedFile(RequiredFiles& files, std::size_t slot, TextView name)
{
    files.RequiredFileNames.at(slot) = name;
    if (name.empty())
        files.RequiredFileSources.at(slot).clear();
}

Text RequirePath(RequiredFiles& files, std::size_t slot, TextView path)
{
    const Text name(GetFileName(path));
    files.RequiredFileNames.at(slot) = name;
    files.RequiredFileSources.at(slot) = name.empty() || name == path ? Text() : Text(path);
    return name;
}

} // namespace orvane
