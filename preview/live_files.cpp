#include "preview/live_files.h"

#include "preview/page_folder.h"

#include <algorithm>

namespace orvane {

namespace {

struct MimeRow
{
    TextView Ending;
    std::string_view Type;
    bool HoldsCode = false;
};
constexpr MimeRow mimeRows[] = {
    {u".html", "text/html", true},
    {u".htm", "text/html", true},
    {u".shtml", "text/html", true},
    {u".xhtml", "application/xhtml+xml", true},
    {u".css", "text/css", true},
    {u".js", "text/javascript", true},
    {u".mjs", "text/javascript", true},
    {u".svg", "image/svg+xml", true},
    {u".json", "application/json"},
    {u".xml", "text/xml"},
    {u".txt", "text/plain"},
    {u".gif", "image/gif"},
    {u".jpg", "image/jpeg"},
    {u".jpeg", "image/jpeg"},
    {u".png", "image/png"},
    {u".webp", "image/webp"},
    {u".avif", "image/avif"},
    {u".bmp", "image/bmp"},
    {u".ico", "image/x-icon"},
    {u".wav", "audio/wav"},
    {u".mp3", "audio/mpeg"},
    {u".ogg", "audio/ogg"},
    {u".mp4", "video/mp4"},
    {u".webm", "video/webm"},
    {u".woff", "font/woff"},
    {u".woff2", "font/woff2"},
    {u".ttf", "font/ttf"},
};

const MimeRow* RowOfName(TextView name)
{
    const auto row = std::ranges::find_if(
        mimeRows, [&](const MimeRow& known) { return EndsWithIgnoringCase(name, known.Ending); });
    return row == std::end(mimeRows) ? nullptr : &*row;
}

SharedBytes Bytes(const LivePage& page, const SharedBytes& bytes)
{
    return page.View.HasReducedMotion ? WithReducedMotion(bytes) : bytes;
}

constexpr std::string_view question = "prefers-reduced-motion";
constexpr std::string_view blanks = " \t\r\n";

/// Takes this from the front of the code, with blanks before it; false when something else is
/// there.
bool Take(std::string_view& code, std::string_view expected)
{
    std::string_view rest = code;
    rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
    if (!EqualIgnoringCase(rest.substr(0, expected.size()), expected))
        return false;
    rest.remove_prefix(expected.size());
    code = rest;
    return true;
}

} // namespace

bool HasFile(const LivePage& page, TextView name)
{
    return name == page.Name ||
           std::ranges::find(page.Files, name, &PaneFile::Name) != page.Files.end() ||
           FileBelow(page.Folder, name);
}

std::optional<PaneFile> FileOf(const LivePage& page, TextView name)
{
    if (name == page.Name)
        return PaneFile{page.Name, {}, Bytes(page, page.Bytes)};
    const auto file = std::ranges::find(page.Files, name, &PaneFile::Name);
    if (file != page.Files.end())
        return file->Path.empty() ? PaneFile{file->Name, {}, Bytes(page, file->Bytes)} : *file;
    if (auto path = FileBelow(page.Folder, name))
        return PaneFile{Text(name), *std::move(path)};
    return std::nullopt;
}

bool MayAskForMotion(TextView name)
{
    const MimeRow* row = RowOfName(name);
    return row != nullptr && row->HoldsCode;
}

std::string WithReducedMotion(std::string_view code)
{
    std::string answered;
    for (std::size_t place = 0; (place = FindIgnoringCase(code, question)) != 0;) {
        answered.append(code.substr(0, place - 1));
        code.remove_prefix(place - 1 + question.size());
        std::string_view rest = code;
        const bool isForMotion = Take(rest, ":") && Take(rest, "no-preference");
        // Every window is so wide, and none so narrow.
        answered.append(isForMotion ? "max-width:0" : "min-width:0");
        if (isForMotion)
            code = rest;
        else if (rest = code; Take(rest, ":") && Take(rest, "reduce"))
            code = rest;
    }
    return answered.append(code);
}

std::string_view MimeTypeOf(TextView name)
{
    const MimeRow* row = RowOfName(name);
    return row == nullptr ? "application/octet-stream" : row->Type;
}

} // namespace orvane
