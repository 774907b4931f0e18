#include "reedit/page_splices.h"

#include <algorithm>

namespace orvane {

std::string Spliced(std::string_view page, std::vector<Splice> splices)
{
    std::ranges::stable_sort(splices, {}, [](const Splice& splice) { return splice.Old.Begin; });
    std::size_t size = page.size();
    for (const Splice& splice : splices)
        size += splice.New.size();
    std::string result;
    result.reserve(size);
    std::size_t done = 0;
    for (const Splice& splice : splices) {
        if (splice.Old.Begin > done)
            result.append(CodeIn(page, {done, splice.Old.Begin}));
        result.append(splice.New);
        done = std::max(done, splice.Old.End);
    }
    return result.append(page.substr(done));
}

std::string_view LineEndOf(std::string_view page)
{
    const std::size_t at = page.find_first_of("\r\n");
    return at == std::string_view::npos ? "\r\n" : page.substr(at, LineEndAt(page, at));
}

std::size_t LineEndAt(std::string_view page, std::size_t at)
{
    if (page.substr(at, 2) == "\r\n")
        return 2;
    return at < page.size() && (page[at] == '\r' || page[at] == '\n') ? 1 : 0;
}

} // namespace orvane
