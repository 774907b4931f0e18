#pragma once

#include "core/text.h"

namespace orvane {

/// A stretch of page code: from Begin up to but not including End, counted from 0.
struct CodeSpan
{
    std::size_t Begin = 0;
    std::size_t End = 0;
    bool operator==(const CodeSpan&) const = default;
};

/// What stands between the tags of the first SCRIPT element whose open tag begins at or behind
/// `from`; an empty span at the end of `code` when there is none. Tags are told from comments,
/// quoted values and the inside of scripts as a browser does. Expects `from` outside of a tag.
CodeSpan NextScript(TextView code, std::size_t from);

} // namespace orvane
