#include "insertion/page_files.h"

#include "core/file_names.h"
#include "core/percents.h"
#include "insertion/page_decoding.h"
#include "insertion/page_markup.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

namespace orvane {

namespace {

/// What ends directly in front of a quoted address in a script.
constexpr std::string_view addressOpeners[] = {
    ".src",       "window.open(",    "location",           "location.href",
    "playSound(", "LinkToLocation(", "strImgPathFilename",
};

/// What opens a list of quoted addresses in a script.
constexpr std::string_view listOpeners[] = {"mypixNames = ["};

/// Attributes whose value is an address, in every tag.
constexpr std::string_view addressAttributes[] = {"src",  "href", "background", "action",
                                                  "code", "data", "poster"};

/// PARAM lines, without the number behind a dot, that give an applet an address.
constexpr std::string_view addressParameters[] = {"image", "sound",      "url",
                                                  "href",  "background", "textfile"};

bool IsAmong(std::string_view name, const auto& names)
{
    return std::ranges::any_of(
        names, [&](std::string_view known) { return EqualIgnoringCase(name, known); });
}

/// Whether the address begins with a scheme, such as "http:"; a drive's letter counts as one.
bool HasScheme(TextView address)
{
    const std::size_t end = address.find_first_of(u":/");
    return end < address.size() && address[end] == u':';
}

/// Collects the names of one page's code.
class NameReader
{
public:
    explicit NameReader(PageEncoding encoding) : m_encoding(encoding) {}

    void ReadCode(std::string_view code)
    {
        for (Markup markup = NextMarkup(code, 0); markup.Whole.Begin < code.size();
             markup = NextMarkup(code, markup.Next)) {
            const std::string_view tag = CodeIn(code, markup.Whole);
            if (tag.starts_with("<!--") || tag.starts_with("</"))
                continue;
            ReadTag(tag);
            if (IsTag(code, markup.Whole.Begin, "<script"))
                ReadScript(CodeIn(code, {markup.Whole.End, markup.Next}));
        }
    }

    std::vector<Text> TakeNames() { return std::move(m_names); }

private:
    Text Decode(std::string_view bytes) const
    {
        return m_encoding == PageEncoding::Utf8 ? FromUtf8(bytes) : FromWindows1252(bytes);
    }

    void Add(TextView address)
    {
        if (const auto name = NameBesidePage(address))
            AddName(*name);
    }

    void AddName(const Text& name)
    {
        if (m_seen.insert(name).second)
            m_names.push_back(name);
    }

    void AddNamesOf(NameReader& inner)
    {
        for (const Text& name : inner.TakeNames())
            AddName(name);
    }

    void ReadTag(std::string_view tag)
    {
        const bool isParameter = IsTag(tag, 0, "<param");
        const bool isOption = IsTag(tag, 0, "<option");
        bool isGiven = false;
        tag.remove_prefix(std::min(tag.find_first_of("\t\n\f\r />"), tag.size()));
        while (const auto attribute = NextAttribute(tag)) {
            const Text value = WithoutReferences(Decode(attribute->Value));
            if (isParameter && EqualIgnoringCase(attribute->Name, "name")) {
                const std::string_view name = attribute->Value;
                isGiven = IsAmong(name.substr(0, name.find('.')), addressParameters);
            } else if (EqualIgnoringCase(attribute->Name, "value")) {
                // Options of a menu lead to pages; others, and parameters such as "null", are
                // words.
                if ((isGiven || isOption) && value.find_first_of(u"./") != Text::npos)
                    Add(value);
            } else if (StartsWithIgnoringCase(attribute->Name, "on")) {
                ReadScript(ToUtf8(value), PageEncoding::Utf8);
            } else if (IsAmong(attribute->Name, addressAttributes)) {
                Add(value);
            }
        }
    }

    void ReadScript(std::string_view script, PageEncoding encoding)
    {
        NameReader reader(encoding);
        reader.ReadScript(script);
        AddNamesOf(reader);
    }

    /// Reads what is quoted in a script: addresses, and page code.
    void ReadScript(std::string_view script)
    {
        bool isInList = false;
        for (std::size_t at = 0; (at = script.find_first_of("'\"]\n", at)) < script.size();) {
            const char sign = script[at];
            if (sign == ']' || sign == '\n') {
                isInList = false;
                ++at;
                continue;
            }
            const std::size_t end = EndOfQuoted(script, at);
            const std::string_view before = script.substr(0, at);
            isInList = isInList || EndsWithAny(before, listOpeners);
            const std::string_view behind =
                WithoutBlanksInFront(script.substr(std::min(end + 1, script.size())));
            const Text words = WithoutBackslashes(Decode(script.substr(at + 1, end - at - 1)));
            if (words.find(u'<') != Text::npos)
                ReadMarkupIn(words);
            else if (!behind.starts_with('+') && (isInList || IsAddress(before)))
                Add(words);
            at = std::min(end + 1, script.size());
        }
    }

    void ReadMarkupIn(TextView words)
    {
        NameReader reader(PageEncoding::Utf8);
        reader.ReadCode(ToUtf8(words));
        AddNamesOf(reader);
    }

    /// The place of the sign that ends the text quoted at `at`, or of the end of its line.
    static std::size_t EndOfQuoted(std::string_view script, std::size_t at)
    {
        const char signs[] = {script[at], '\\', '\n', '\0'};
        std::size_t end = at + 1;
        while ((end = script.find_first_of(signs, end)) < script.size() && script[end] == '\\')
            end += 2;
        return std::min(end, script.size());
    }

    static bool EndsWithAny(std::string_view text, const auto& ends)
    {
        return std::ranges::any_of(ends, [&](std::string_view end) { return text.ends_with(end); });
    }

    /// Whether an address stands behind this part of a script.
    static bool IsAddress(std::string_view before)
    {
        const auto trim = [&] {
            const std::size_t last = before.find_last_not_of(" \t");
            before = before.substr(0, last == std::string_view::npos ? 0 : last + 1);
        };
        trim();
        if (before.ends_with('=')) {
            before.remove_suffix(1);
            trim();
        } else if (!before.ends_with('(')) {
            return false;
        }
        return EndsWithAny(before, addressOpeners);
    }

    PageEncoding m_encoding;
    std::vector<Text> m_names;
    std::set<Text> m_seen;
};

} // namespace

std::optional<Text> NameBesidePage(TextView address)
{
    const TextView path = Trim(address.substr(0, address.find_first_of(u"?#")));
    if (path.empty() || HasScheme(path))
        return std::nullopt;
    Text name = ReplaceAll(WithoutPercents(path), u"\\", u"/");
    if (name.starts_with(u'/'))
        return std::nullopt;
    return name;
}

std::vector<Text> NamesInCode(std::string_view code, PageEncoding encoding)
{
    NameReader reader(encoding);
    reader.ReadCode(code);
    return reader.TakeNames();
}

std::vector<PageFile> LookBesidePage(const FileStore& files, TextView folder,
                                     const std::vector<Text>& names)
{
    std::vector<PageFile> found;
    for (const Text& name : names) {
        const Text path = Join({folder, name});
        found.push_back({name, files.FileExists(path) || files.FolderExists(path)});
    }
    return found;
}

} // namespace orvane
