#include "reedit/block_content.h"

#include "core/numbers.h"
#include "insertion/page_decoding.h"
#include "services/block_values.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

namespace orvane {

namespace {

Text Decoded(std::string_view code)
{
    return WithoutReferences(FromUtf8(code));
}

/// What stands in one item of a list.
struct ItemRead
{
    Text Words;
    Text Quote; ///< the words without the author
    Text Author;
    Text Link;
    Text Color;
    BlockPictures Pictures;
};

/// Collects what stands inside a block's root, in each of the shapes that content can have.
class ContentReader
{
public:
    void TakeText(std::string_view code)
    {
        Text text = Decoded(code);
        std::ranges::replace_if(
            text, [](char16_t c) { return c == u'\r' || c == u'\n'; }, u' ');
        Add(text);
    }

    void TakeTag(std::string_view tag)
    {
        const Text name = ToLower(FromUtf8(NameOfTag(tag)));
        if (name == u"li") {
            m_isInItem = true;
            m_isInAuthor = false;
            m_link.clear();
            m_items.push_back({.Color = AttributeNamed(AttributesOfTag(tag), u"data-color")});
        } else if (name == u"/li" || name == u"/ul") {
            m_isInItem = false;
        } else if (name == u"cite" || name == u"/cite") {
            m_isInAuthor = name == u"cite";
        } else if (name == u"figcaption" || name == u"/figcaption") {
            m_isInCaption = name == u"figcaption";
        } else if (name == u"a") {
            TakeLink(AttributeNamed(AttributesOfTag(tag), u"href"));
        } else if (name == u"/a") {
            m_link.clear();
        } else if (name == u"br") {
            Add(u"\n");
        } else if (name == u"p" || name == u"/p" || name == u"div" || name == u"/div") {
            Add(u" ");
            m_paragraphs += u"\n\n";
            if (m_isInCaption && !name.starts_with(u'/'))
                m_figure.Words.emplace_back();
        } else if (name == u"img") {
            TakePicture(AttributesOfTag(tag));
        } else if (name == u"audio") {
            m_sound = AttributeNamed(AttributesOfTag(tag), u"src");
        }
    }

    BlockContent Content(const BlockContent& shape) const
    {
        return std::visit([this](const auto& alternative) { return BlockContent(In(alternative)); },
                          shape);
    }

private:
    std::monostate In(std::monostate) const { return {}; }
    Text In(const Text&) const { return m_words; }
    BlockParagraphs In(const BlockParagraphs&) const { return {m_paragraphs}; }
    LinkedParagraphs In(const LinkedParagraphs&) const { return {m_paragraphs, m_firstLink}; }
    BlockRow In(const BlockRow&) const { return {m_words, m_firstLink}; }
    BlockPictures In(const BlockPictures&) const { return m_pictures; }
    BlockRows In(const BlockRows&) const
    {
        return Items<BlockRow>([](const auto& item) { return BlockRow{item.Words, item.Link}; });
    }
    ColoredRows In(const ColoredRows&) const
    {
        return Items<ColoredRow>([](const auto& item) {
            return ColoredRow{item.Words, item.Link, item.Color};
        });
    }
    QuoteRows In(const QuoteRows&) const
    {
        return Items<QuoteRow>([](const auto& item) {
            return QuoteRow{item.Quote, item.Author, item.Link};
        });
    }
    RolloverRows In(const RolloverRows&) const { return Items<RolloverRow>(&RolloverOf); }
    BlockSound In(const BlockSound&) const { return {m_sound, {}}; }
    BlockDay In(BlockDay) const { return {}; }
    BlockButton In(const BlockButton&) const
    {
        BlockButton button = m_button;
        if (!button.AtRest.empty())
            button.AtRest.front().Link = m_firstLink;
        return button;
    }
    BlockFigure In(const BlockFigure&) const
    {
        BlockFigure figure = m_figure;
        if (!m_pictures.empty())
            figure.Picture = m_pictures.front();
        return figure;
    }

    /// The last picture of an item is the one that is shown; one before it is the trigger.
    static RolloverRow RolloverOf(const ItemRead& item)
    {
        RolloverRow row{.Words = item.Words};
        if (item.Pictures.empty())
            return row;
        row.Picture = item.Pictures.back();
        row.Picture.Link = item.Link;
        if (item.Pictures.size() == 1)
            return row;
        row.Trigger = item.Pictures.front();
        if (TidyLines(row.Words).empty())
            row.Words = row.Trigger.Description;
        return row;
    }

    template <class Row, class Make>
    std::vector<Row> Items(Make make) const
    {
        std::vector<Row> rows;
        std::ranges::transform(m_items, std::back_inserter(rows), make);
        return rows;
    }

    void Add(TextView text)
    {
        m_words += text;
        m_paragraphs += text;
        if (m_isInItem) {
            ItemRead& item = m_items.back();
            item.Words += text;
            (m_isInAuthor ? item.Author : item.Quote) += text;
        }
        if (m_isInCaption && !m_figure.Words.empty())
            m_figure.Words.back() += text;
    }

    void TakeLink(const Text& link)
    {
        m_link = link;
        if (m_firstLink.empty())
            m_firstLink = link;
        if (m_isInItem && m_items.back().Link.empty())
            m_items.back().Link = link;
    }

    void TakePicture(const BlockAttributes& attributes)
    {
        BlockPicture picture{.Address = AttributeNamed(attributes, u"src"),
                             .Description = AttributeNamed(attributes, u"alt"),
                             .Link = m_link};
        SetPixels(picture.Width, AttributeNamed(attributes, u"width"));
        SetPixels(picture.Height, AttributeNamed(attributes, u"height"));
        if (m_isInItem)
            m_items.back().Pictures.push_back(picture);
        const Text state = AttributeNamed(attributes, u"data-state");
        (state == u"over"      ? m_button.Over
         : state == u"pressed" ? m_button.Pressed
                               : m_button.AtRest)
            .push_back(picture);
        m_pictures.push_back(std::move(picture));
    }

    /// Takes no size in percent, which is none of the file.
    static void SetPixels(int& size, const Text& text)
    {
        constexpr NumberBounds pixels{0, std::numeric_limits<std::int16_t>::max()};
        if (IsNumeric(text))
            SetField(size, {MendedNumber(text, pixels, u"0")});
    }

    Text m_words;
    Text m_paragraphs;
    std::vector<ItemRead> m_items;
    BlockPictures m_pictures;
    BlockFigure m_figure; ///< its words alone
    BlockButton m_button;
    Text m_sound;
    Text m_link; ///< of the link that is open
    Text m_firstLink;
    bool m_isInItem = false;
    bool m_isInAuthor = false;
    bool m_isInCaption = false;
};

} // namespace

std::string_view NameOfTag(std::string_view tag)
{
    return tag.substr(1, tag.find_first_of("\t\n\f\r />", 2) - 1);
}

BlockAttributes AttributesOfTag(std::string_view tag)
{
    BlockAttributes attributes;
    tag.remove_prefix(1 + NameOfTag(tag).size());
    while (const auto attribute = NextAttribute(tag)) {
        const Text name = FromUtf8(attribute->Name);
        if (std::ranges::none_of(attributes,
                                 [&](const auto& a) { return EqualIgnoringCase(a.Name, name); }))
            attributes.push_back({name, Decoded(attribute->Value)});
    }
    return attributes;
}

Text AttributeNamed(const BlockAttributes& attributes, TextView name)
{
    const auto found = std::ranges::find_if(
        attributes, [&](const auto& a) { return EqualIgnoringCase(a.Name, name); });
    return found == attributes.end() ? Text() : found->Value;
}

BlockContent ContentBehind(std::string_view code, const Markup& root, const BlockContent& shape)
{
    const std::string name(NameOfTag(CodeIn(code, root.Whole)));
    ContentReader content;
    int depth = 1;
    for (std::size_t at = root.Next; at < code.size();) {
        const Markup markup = NextMarkup(code, at);
        const std::string_view tag = CodeIn(code, markup.Whole);
        content.TakeText(code.substr(at, markup.Whole.Begin - at));
        if (tag.empty())
            break;
        at = markup.Next;
        if (EqualIgnoringCase(NameOfTag(tag), name))
            ++depth;
        else if (EqualIgnoringCase(NameOfTag(tag), "/" + name) && --depth == 0)
            break;
        content.TakeTag(tag);
    }
    return content.Content(shape);
}

} // namespace orvane
