#pragma once

#include "core/text.h"

#include <optional>

namespace orvane {

/// The comments around an effect's code in a page. They hold ASCII alone, so that they stand in
/// pages of every encoding as they are.
struct EffectMarkers
{
    Text Begin;
    Text End;
    bool operator==(const EffectMarkers&) const = default;
};

/// The comments of the effect with that name (CatalogueRow::MarkerName).
EffectMarkers MarkersOf(TextView name);

/// The name of the effect whose code begins with this comment; nothing for any other comment. Upper
/// and lower case are equal, as they are when an effect's earlier copy is looked for.
std::optional<Text> NameInBeginMarker(TextView comment);

/// The same for the comment with which an effect's code ends.
std::optional<Text> NameInEndMarker(TextView comment);

/// The code between its comments, each on a line of its own; no code stays none.
Text Marked(const EffectMarkers& markers, TextView code);

} // namespace orvane
