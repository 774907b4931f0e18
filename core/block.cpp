#include "core/block.h"

#include "core/block_scripts.h"
#include "core/numbers.h"
#include "core/percents.h"

#include <algorithm>

namespace orvane {

namespace {

bool IsControl(char16_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

bool IsBlank(char16_t c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

/// The value as it may stand in a quoted attribute and between tags.
Text InHtml(TextView value)
{
    Text html;
    // Half of a surrogate pair has no bytes in any page.
    for (const char16_t c : FromUtf8(ToUtf8(value))) {
        if (c == u'&')
            html += u"&amp;";
        else if (c == u'<')
            html += u"&lt;";
        else if (c == u'>')
            html += u"&gt;";
        else if (c == u'"')
            html += u"&quot;";
        else if (c == u'\t' || c == u'\n' || c == u'\r')
            html += Join({u"&#", NumberToText(static_cast<int>(c)), u";"});
        else if (!IsControl(c))
            html += c;
    }
    return html;
}

Text AttributeInHtml(TextView name, TextView value)
{
    const bool isName = !name.empty() && std::ranges::none_of(name, [](char16_t c) {
        return IsControl(c) || c > 0x7F || TextView(u" \"'<>/=`&").find(c) != TextView::npos;
    });
    return isName ? Join({u" ", name, u"=\"", InHtml(value), u"\""}) : Text();
}

Text LinesInHtml(TextView words)
{
    Text html = InHtml(ReplaceAll(words, lineEnd, u"\n"));
    for (const TextView end : {u"&#10;", u"&#13;"})
        html = ReplaceAll(html, end, u"<br>");
    return html;
}

Text ItemInHtml(TextView inside, TextView link, bool isHidden)
{
    const Text linked = link.empty()
                            ? Text(inside)
                            : Join({u"<a", AttributeInHtml(u"href", link), u">", inside, u"</a>"});
    return Join({isHidden ? u"<li hidden>" : u"<li>", linked, u"</li>"});
}

Text PictureInHtml(const BlockPicture& picture, bool isSeen)
{
    Text html = Join({u"<img", AttributeInHtml(u"src", picture.Address),
                      AttributeInHtml(u"alt", picture.Description)});
    if (picture.Width > 0)
        html += AttributeInHtml(u"width", NumberToText(picture.Width));
    if (picture.Height > 0)
        html += AttributeInHtml(u"height", NumberToText(picture.Height));
    return Join({html, isSeen ? u">" : u" loading=\"lazy\">"});
}

Text ListInHtml(const Block& block)
{
    Text items;
    if (const auto* rows = std::get_if<BlockRows>(&block.Content))
        for (const BlockRow& row : *rows)
            items += ItemInHtml(LinesInHtml(row.Words), row.Link, false);
    if (const auto* pictures = std::get_if<BlockPictures>(&block.Content))
        for (const BlockPicture& picture : *pictures) {
            const bool isFirst = items.empty();
            const bool isSeen =
                block.Seen == PicturesSeen::All || (block.Seen == PicturesSeen::First && isFirst);
            items += ItemInHtml(PictureInHtml(picture, isSeen), picture.Link,
                                block.Seen == PicturesSeen::First && !isFirst);
        }
    return Join({block.Seen == PicturesSeen::None ? u"<ul hidden>" : u"<ul>", items, u"</ul>"});
}

Text ScriptOf(const Block& block)
{
    return Join({u"<script", AttributeInHtml(u"data-orvane-run", block.Kind), u">",
                 BlockScript(Left(block.Kind, FindLast(block.Kind, u"-") - 1)), u"</script>"});
}

/// The name of the file beside the page that an address leads to; empty for any other place.
Text FileBesidePage(TextView address)
{
    const TextView path = address.substr(0, address.find(u'#'));
    const bool isOther = path.find_first_of(u":?") != TextView::npos || path.starts_with(u'/') ||
                         path.starts_with(u'\\');
    return isOther ? Text() : WithoutPercents(path);
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
    if (const auto* words = std::get_if<Text>(&block.Content)) {
        // A DIV inside a paragraph would end it.
        const TextView element = words->find_first_of(lineEnd) == Text::npos ? u"span" : u"div";
        return Join({OpenTagOf(block, element), LinesInHtml(*words), ScriptOf(block), u"</",
                     element, u">", lineEnd});
    }
    return Join({OpenTagOf(block, u"div"), lineEnd, ListInHtml(block), lineEnd, ScriptOf(block),
                 lineEnd, u"</div>", lineEnd});
}

RequiredFiles FilesOf(const BlockContent& content)
{
    RequiredFiles files;
    const auto* pictures = std::get_if<BlockPictures>(&content);
    std::size_t slot = 0;
    for (const BlockPicture& picture : pictures ? *pictures : BlockPictures()) {
        const Text name = FileBesidePage(picture.Address);
        if (slot == files.RequiredFileNames.size() || name.empty() ||
            std::ranges::find(files.RequiredFileNames, name) != files.RequiredFileNames.end())
            continue;
        files.RequiredFileNames[slot] = name;
        files.RequiredFileSources[slot++] = picture.Source;
    }
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

} // namespace orvane
