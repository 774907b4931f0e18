#include "core/block.h"

#include "core/block_html.h"
#include "core/block_scripts.h"
#include "core/file_names.h"
#include "core/percents.h"

#include <algorithm>

namespace orvane {

namespace {

bool IsBlank(char16_t c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

/// The name of the file beside the page that an address leads to; empty for any other place.
Text FileBesidePage(TextView address)
{
    const TextView path = address.substr(0, address.find(u'#'));
    const bool isOther = path.find_first_of(u":?") != TextView::npos || path.starts_with(u'/') ||
                         path.starts_with(u'\\');
    return isOther ? Text() : WithoutPercents(path);
}

template <class... Shapes>
bool IsAny(const BlockContent& content)
{
    return (std::holds_alternative<Shapes>(content) || ...);
}

} // namespace

Text OpenTagOf(const Block& block, TextView element)
{
    Text tag = Join({u"<", element, AttributeInHtml(u"data-orvane", block.Kind)});
    for (const BlockAttribute& attribute : block.Attributes)
        tag += AttributeInHtml(attribute.Name, attribute.Value);
    return tag += u'>';
}

Text WriteBlock(const Block& block)
{
    const auto* words = std::get_if<Text>(&block.Content);
    const bool isLink = IsAny<BlockRow, BlockButton, std::monostate>(block.Content);
    // A DIV inside a paragraph would end it.
    const bool isInLine = isLink || (words && words->find_first_of(lineEnd) == Text::npos);
    const TextView element = isInLine ? u"span" : u"div";
    // A blank beside the words would be seen.
    const TextView between = isLink || words ? TextView() : lineEnd;
    const Text content = ContentInHtml(block);
    return Join({OpenTagOf(block, element), between, content, content.empty() ? u"" : between,
                 ScriptOf(block), between, u"</", element, u">", lineEnd});
}

Text ScriptOf(const Block& block)
{
    return Join({u"<script", AttributeInHtml(u"data-orvane-run", block.Kind), u">",
                 BlockScript(Left(block.Kind, FindLast(block.Kind, u"-") - 1)), u"</script>"});
}

BlockPictures PicturesOf(const BlockContent& content)
{
    BlockPictures pictures;
    const auto add = [&](const BlockPictures& more) {
        pictures.insert(pictures.end(), more.begin(), more.end());
    };
    if (const auto* listed = std::get_if<BlockPictures>(&content))
        add(*listed);
    if (const auto* figure = std::get_if<BlockFigure>(&content))
        add({figure->Picture});
    if (const auto* rows = std::get_if<RolloverRows>(&content))
        for (const RolloverRow& row : *rows)
            add({row.Trigger, row.Picture});
    if (const auto* button = std::get_if<BlockButton>(&content))
        for (const BlockPictures* state : {&button->AtRest, &button->Over, &button->Pressed})
            add(*state);
    return pictures;
}

RequiredFiles FilesOf(const BlockContent& content, const std::vector<BlockSound>& sounds)
{
    RequiredFiles files;
    std::size_t slot = 0;
    const auto add = [&](TextView address, const Text& source) {
        const Text name = FileBesidePage(address);
        if (slot == files.RequiredFileNames.size() || name.empty() ||
            std::ranges::find(files.RequiredFileNames, name) != files.RequiredFileNames.end())
            return;
        files.RequiredFileNames[slot] = name;
        if (GetFileName(source) == GetFileName(name))
            files.RequiredFileSources[slot] = source;
        ++slot;
    };
    for (const BlockPicture& picture : PicturesOf(content))
        add(picture.Address, picture.Source);
    if (const auto* sound = std::get_if<BlockSound>(&content))
        add(sound->Address, sound->Source);
    for (const BlockSound& sound : sounds)
        add(sound.Address, sound.Source);
    return files;
}

Text OneLine(TextView text)
{
    Text line;
    for (const char16_t c : FromUtf8(ToUtf8(text))) {
        if (IsBlank(c))
            line += u' ';
        else if (!IsControl(c))
            line += c;
    }
    return Text(Trim(line));
}

Text TidyLines(TextView text)
{
    Text lines;
    bool isBehindBlank = false;
    const auto isAtStart = [&] { return lines.empty() || lines.back() == u'\n'; };
    for (const char16_t c : ReplaceAll(FromUtf8(ToUtf8(text)), lineEnd, u"\n")) {
        if (c == u'\n' || c == u'\r') {
            if (!lines.empty())
                lines += lineEnd;
            isBehindBlank = false;
        } else if (IsBlank(c)) {
            isBehindBlank = true;
        } else if (!IsControl(c)) {
            if (isBehindBlank && !isAtStart())
                lines += u' ';
            isBehindBlank = false;
            lines += c;
        }
    }
    lines.resize(lines.find_last_not_of(lineEnd) + 1);
    return lines;
}

Text TidyParagraphs(TextView text)
{
    constexpr TextView twoEmptyLines = u"\r\n\r\n\r\n";
    Text paragraphs = TidyLines(text);
    while (Find(paragraphs, twoEmptyLines) != 0)
        paragraphs = ReplaceAll(paragraphs, twoEmptyLines, u"\r\n\r\n");
    return paragraphs;
}

FieldTexts TextsOf(const BlockParagraphs& paragraphs)
{
    return {paragraphs.Words};
}

void SetField(BlockParagraphs& paragraphs, const FieldTexts& texts)
{
    SetField(paragraphs.Words, texts);
}

} // namespace orvane
