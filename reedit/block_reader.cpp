#include "reedit/block_reader.h"

#include "insertion/page_markup.h"
#include "reedit/block_content.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace orvane {

namespace {

constexpr TextView kindAttribute = u"data-orvane";

/// Whether both are one kind of block, whatever the numbers of their formats.
bool IsSameKind(TextView left, TextView right)
{
    return FindLast(left, u"-") != 0 &&
           EqualIgnoringCase(Left(left, FindLast(left, u"-")), Left(right, FindLast(right, u"-")));
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
        Block block{.Kind = Text(kind), .Attributes = AttributesOfTag(tag)};
        if (!IsSameKind(AttributeNamed(block.Attributes, kindAttribute), kind))
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
