#pragma once

#include "core/pasted_tag.h"

#include <variant>

namespace orvane {

/// A wizard opens with a fresh effect, and offers what was left of an earlier one.
struct FreshStart
{
};

/// A wizard opens with the values of a draft's text; fields that it lacks are fresh.
struct Recipe
{
    Text Draft;
};

/// A wizard opens with the project in a file.
struct ProjectFile
{
    Text Path;
};

/// How a wizard opens. A wizard that reads no tags or no projects opens fresh instead.
using Opening = std::variant<FreshStart, PastedTag, Recipe, ProjectFile>;

} // namespace orvane
