#pragma once

#include "core/catalogue.h"

#include <QIcon>
#include <QImage>
#include <QString>

class QPalette;

namespace orvane {

/// How large effects are shown in the catalogue.
inline constexpr QSize pictureSize{144, 90};

/// The full path of the moving picture of an effect at work, for windows with these colors on a
/// screen with so many pixels to a point; the file may be missing.
QString PictureFile(const CatalogueRow& row, const QPalette& colors, double pixels);

/// What stands first in the file, as it stands on a button; else the drawing of the effect inside
/// the program.
QIcon StillPicture(const CatalogueRow& row, const QPalette& colors, double pixels);

/// The picture as it stands on a button: with a thin edge and rounded corners, which are drawn when
/// they are needed, so that a picture of few colors takes little memory.
QIcon Edged(const QImage& picture, const QPalette& colors);

} // namespace orvane
