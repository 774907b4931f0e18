#pragma once

#include "core/catalogue.h"

#include <QPixmap>
#include <QString>

class QPalette;

namespace orvane {

/// How large effects are shown in the catalogue.
inline constexpr QSize pictureSize{144, 90};

/// The full path of the moving picture of an effect at work, for windows with these colors; the
/// file may be missing.
QString PictureFile(const CatalogueRow& row, const QPalette& colors);

/// What stands first in the file, else the drawing of the effect inside the program; for a screen
/// with so many pixels to a point.
QPixmap StillPicture(const CatalogueRow& row, const QPalette& colors, double pixels);

/// The picture as it stands on a button: with a thin edge and rounded corners.
QPixmap Edged(QPixmap picture, const QPalette& colors);

} // namespace orvane
