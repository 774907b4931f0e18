#pragma once

#include "core/block.h"
#include "insertion/page_markup.h"

#include <string_view>

namespace orvane {

/// The name of a tag, with the slash of a close tag in front of it.
std::string_view NameOfTag(std::string_view tag);

/// The attributes of an open tag; of several of one name, the first.
BlockAttributes AttributesOfTag(std::string_view tag);

/// The value of the attribute of that name, upper and lower case taken as equal; empty when there
/// is none.
Text AttributeNamed(const BlockAttributes& attributes, TextView name);

/// The content of a block in the shape that `shape` has: what stands between the root's open tag
/// and its close tag, or the end of the code.
BlockContent ContentBehind(std::string_view code, const Markup& root, const BlockContent& shape);

} // namespace orvane
