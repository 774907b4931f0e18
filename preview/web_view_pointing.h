#pragma once

#include "core/preview_pane.h"

#include <QString>

#include <optional>

namespace orvane {

/// The script by which a loaded page takes pointing: the part under the mouse is framed, and a
/// click reports the place behind the token. Nothing else that the mouse does reaches the page.
QString PointingScript(const QString& token);

/// The script that scrolls a loaded page to what stands behind the comment with this mark.
QString ScrollingScript(const Text& mark);

/// The place in a report of that script, which is given without the token; nothing in any other.
std::optional<PointedPlace> PlaceIn(const QString& report);

} // namespace orvane
