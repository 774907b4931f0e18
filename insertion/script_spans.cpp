#include "insertion/script_spans.h"

namespace orvane {

CodeSpan NextScript(std::string_view code, std::size_t from)
{
    Markup markup{{from, from}, from};
    do
        markup = NextMarkup(code, markup.Next);
    while (markup.Whole.Begin < code.size() && !IsTag(code, markup.Whole.Begin, "<script"));
    return {markup.Whole.End, markup.Next};
}

} // namespace orvane
