#include "reedit/block_reader.h"

#include "core/numbers.h"
#include "insertion/page_decoding.h"
#include "insertion/page_markup.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace orvane {

namespace {

constexpr TextView kindAttribute = u"data-orvane";

Text Decoded(std::string_view code)
{
    return WithoutReferences(FromUtf8(code));
}

/// The name of a tag, with the slash of a close tag in front of it.
std::string_view NameOf(std::string_view tag)
{
    return tag.substr(1, tag.find_first_of("\t\n\f\r />", 2) - 1);
}

/// The attributes of an open tag; of several of one name, the first.
BlockAttributes AttributesOf(std::string_view tag)
{
    BlockAttributes attributes;
    tag.remove_prefix(1 + NameOf(tag).size());
    while (const auto attribute = NextAttribute(tag)) {
        const Text name = FromUtf8(attribute->Name);
        if (std::ranges::none_of(attributes,
                                 [&](const auto& a) { return EqualIgnoringCase(a.Name, name); }))
            attributes.push_back({name, Decoded(attribute->Value)});
    }
    return attributes;
}

Text ValueOf(const BlockAttributes& attributes, TextView name)
{
    const auto found = std::ranges::find_if(
        attributes, [&](const auto& a) { return EqualIgnoringCase(a.Name, name); });
    return found == attributes.end() ? Text() : found->Value;
}

/// Whether both are one kind of block, whatever the numbers of their formats.
bool IsSameKind(TextView left, TextView right)
{
    return FindLast(left, u"-") != 0 &&
           EqualIgnoringCase(Left(left, FindLast(left, u"-")), Left(right, FindLast(right, u"-")));
}

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
        const Text name = ToLower(FromUtf8(NameOf(tag)));
        if (name == u"li") {
            m_isInRow = true;
            m_link.clear();
            m_rows.emplace_back();
        } else if (name == u"/li" || name == u"/ul") {
            m_isInRow = false;
        } else if (name == u"a") {
            m_link = ValueOf(AttributesOf(tag), u"href");
            if (m_isInRow && m_rows.back().Link.empty())
                m_rows.back().Link = m_link;
        } else if (name == u"/a") {
            m_link.clear();
        } else if (name == u"br") {
            Add(u"\n");
        } else if (name == u"p" || name == u"/p" || name == u"div" || name == u"/div") {
            Add(u" ");
        } else if (name == u"img") {
            TakePicture(AttributesOf(tag));
        }
    }

    BlockContent Content(const BlockContent& shape) const
    {
        return std::visit(
            [this](const auto& alternative) -> BlockContent {
                using Shape = std::remove_cvref_t<decltype(alternative)>;
                if constexpr (std::same_as<Shape, Text>)
                    return m_words;
                else if constexpr (std::same_as<Shape, BlockRows>)
                    return m_rows;
                else if constexpr (std::same_as<Shape, BlockPictures>)
                    return m_pictures;
                else
                    return {};
            },
            shape);
    }

private:
    void Add(TextView text)
    {
        m_words += text;
        if (m_isInRow)
            m_rows.back().Words += text;
    }

    void TakePicture(const BlockAttributes& attributes)
    {
        BlockPicture picture{.Address = ValueOf(attributes, u"src"),
                             .Description = ValueOf(attributes, u"alt"),
                             .Link = m_link};
        SetPixels(picture.Width, ValueOf(attributes, u"width"));
        SetPixels(picture.Height, ValueOf(attributes, u"height"));
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
    BlockRows m_rows;
    BlockPictures m_pictures;
    Text m_link; ///< of the link that is open
    bool m_isInRow = false;
};

/// Reads from behind the root's open tag to its close tag, or to the end of the code.
BlockContent ContentBehind(std::string_view code, const Markup& root, const BlockContent& shape)
{
    const std::string name(NameOf(CodeIn(code, root.Whole)));
    ContentReader content;
    int depth = 1;
    for (std::size_t at = root.Next; at < code.size();) {
        const Markup markup = NextMarkup(code, at);
        const std::string_view tag = CodeIn(code, markup.Whole);
        content.TakeText(code.substr(at, markup.Whole.Begin - at));
        if (tag.empty())
            break;
        at = markup.Next;
        if (EqualIgnoringCase(NameOf(tag), name))
            ++depth;
        else if (EqualIgnoringCase(NameOf(tag), "/" + name) && --depth == 0)
            break;
        content.TakeTag(tag);
    }
    return content.Content(shape);
}

} // namespace

std::optional<Block> FindBlock(TextView text, TextView kind, const BlockContent& shape)
{
    const std::string code = ToUtf8(text);
    for (std::size_t at = 0; at < code.size();) {
        const Markup markup = NextMarkup(code, at);
        at = markup.Next;
        const std::string_view tag = CodeIn(code, markup.Whole);
        if (tag.empty() || tag.starts_with("<!"))
            continue;
        Block block{.Kind = Text(kind), .Attributes = AttributesOf(tag)};
        if (!IsSameKind(ValueOf(block.Attributes, kindAttribute), kind))
            continue;
        std::erase_if(block.Attributes, [](const BlockAttribute& attribute) {
            return EqualIgnoringCase(attribute.Name, kindAttribute);
        });
        block.Content = ContentBehind(code, markup, shape);
        return block;
    }
    return std::nullopt;
}

} // namespace orvane
