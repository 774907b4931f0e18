#include "core/block_html.h"

#include "core/numbers.h"

#include <algorithm>

namespace orvane {

namespace {

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

Text LinesInHtml(TextView words)
{
    Text html = InHtml(ReplaceAll(words, lineEnd, u"\n"));
    for (const TextView end : {u"&#10;", u"&#13;"})
        html = ReplaceAll(html, end, u"<br>");
    return html;
}

/// The open tag of a link; nothing without an address.
Text OpenLink(TextView link)
{
    return link.empty() ? Text() : Join({u"<a", AttributeInHtml(u"href", link), u">"});
}

Text Linked(TextView inside, TextView link)
{
    return link.empty() ? Text(inside) : Join({OpenLink(link), inside, u"</a>"});
}

/// `attributes` come behind those that every picture has.
Text PictureInHtml(const BlockPicture& picture, bool isSeen, TextView attributes = {})
{
    Text html = Join({u"<img", AttributeInHtml(u"src", picture.Address),
                      AttributeInHtml(u"alt", picture.Description)});
    if (picture.Width > 0)
        html += AttributeInHtml(u"width", NumberToText(picture.Width));
    if (picture.Height > 0)
        html += AttributeInHtml(u"height", NumberToText(picture.Height));
    return Join({html, attributes, isSeen ? u">" : u" loading=\"lazy\">"});
}

/// What one item of a list holds.
struct Item
{
    Text Inside;
    bool IsHidden = false;
    TextView Attributes = {};
};

Text ItemInHtml(const Item& item)
{
    return Join(
        {u"<li", item.IsHidden ? u" hidden" : u"", item.Attributes, u">", item.Inside, u"</li>"});
}

Text InList(TextView items, bool isHidden = false)
{
    return Join({isHidden ? u"<ul hidden>" : u"<ul>", items, u"</ul>"});
}

/// Writes the content, whichever shape it has.
struct ContentWriter
{
    PicturesSeen Seen;

    Text operator()(std::monostate) const { return {}; }

    Text operator()(const Text& words) const { return LinesInHtml(words); }

    Text operator()(const BlockParagraphs& paragraphs) const
    {
        return (*this)(LinkedParagraphs{paragraphs.Words, {}});
    }

    Text operator()(const LinkedParagraphs& paragraphs) const
    {
        if (paragraphs.Words.empty())
            return {};
        const Text begin = Join({u"<p>", OpenLink(paragraphs.Link)});
        const Text end = paragraphs.Link.empty() ? u"</p>" : u"</a></p>";
        const Text between = end + begin;
        return Join({begin, ReplaceAll(LinesInHtml(paragraphs.Words), u"<br><br>", between), end});
    }

    Text operator()(const BlockRow& row) const { return Linked(LinesInHtml(row.Words), row.Link); }

    Text operator()(const BlockRows& rows) const
    {
        Text items;
        for (const BlockRow& row : rows)
            items += ItemInHtml({.Inside = (*this)(row)});
        return InList(items);
    }

    Text operator()(const ColoredRows& rows) const
    {
        Text items;
        for (const ColoredRow& row : rows) {
            const Text color =
                row.Color.empty() ? Text() : AttributeInHtml(u"data-color", row.Color);
            items += ItemInHtml(
                {.Inside = Linked(LinesInHtml(row.Words), row.Link), .Attributes = color});
        }
        return InList(items);
    }

    Text operator()(const QuoteRows& rows) const
    {
        Text items;
        for (const QuoteRow& row : rows) {
            const Text author = row.Author.empty()
                                    ? Text()
                                    : Join({u"<cite>", LinesInHtml(row.Author), u"</cite>"});
            items += ItemInHtml(
                {.Inside = Join({u"<blockquote>", Linked(LinesInHtml(row.Words), row.Link),
                                 u"</blockquote>", author}),
                 .IsHidden = !items.empty()});
        }
        return InList(items);
    }

    Text operator()(const RolloverRows& rows) const
    {
        Text items;
        for (const RolloverRow& row : rows) {
            BlockPicture trigger = row.Trigger;
            trigger.Description = row.Words;
            const Text words =
                trigger.Address.empty() ? LinesInHtml(row.Words) : PictureInHtml(trigger, true);
            items += ItemInHtml({.Inside = Join({Linked(words, row.Picture.Link), u" ",
                                                 PictureInHtml(row.Picture, true)})});
        }
        return InList(items);
    }

    Text operator()(const BlockPictures& pictures) const
    {
        Text items;
        for (const BlockPicture& picture : pictures) {
            const bool isFirst = items.empty();
            const bool isSeen =
                Seen == PicturesSeen::All || (Seen == PicturesSeen::First && isFirst);
            items += ItemInHtml({.Inside = Linked(PictureInHtml(picture, isSeen), picture.Link),
                                 .IsHidden = Seen == PicturesSeen::First && !isFirst});
        }
        return InList(items, Seen == PicturesSeen::None);
    }

    Text operator()(const BlockFigure& figure) const
    {
        Text words;
        for (const Text& paragraph : figure.Words)
            words += Join({u"<p>", LinesInHtml(paragraph), u"</p>"});
        return Join({u"<figure>", PictureInHtml(figure.Picture, true), u"<figcaption>", words,
                     u"</figcaption></figure>"});
    }

    Text operator()(const BlockButton& button) const
    {
        Text html;
        const auto add = [&](const BlockPictures& pictures, TextView attributes) {
            for (const BlockPicture& picture : pictures)
                html += html.empty() ? Linked(PictureInHtml(picture, true), picture.Link)
                                     : PictureInHtml(picture, false, attributes);
        };
        add(button.AtRest, u" hidden");
        add(button.Over, u" hidden data-state=\"over\"");
        add(button.Pressed, u" hidden data-state=\"pressed\"");
        return html;
    }

    Text operator()(const BlockSound& sound) const
    {
        // A player without a sound would be seen, but is of no use.
        const Text attributes =
            sound.Address.empty() ? Text() : AttributeInHtml(u"src", sound.Address) + u" controls";
        return Join({u"<audio", attributes, u" preload=\"none\"></audio>"});
    }

    Text operator()(BlockDay) const { return u"<time hidden></time>"; }
};

} // namespace

bool IsControl(char16_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

Text AttributeInHtml(TextView name, TextView value)
{
    const bool isName = !name.empty() && std::ranges::none_of(name, [](char16_t c) {
        return IsControl(c) || c > 0x7F || TextView(u" \"'<>/=`&").find(c) != TextView::npos;
    });
    return isName ? Join({u" ", name, u"=\"", InHtml(value), u"\""}) : Text();
}

Text ContentInHtml(const Block& block)
{
    return std::visit(ContentWriter{block.Seen}, block.Content);
}

} // namespace orvane
