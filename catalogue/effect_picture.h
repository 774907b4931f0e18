#pragma once

#include "core/catalogue.h"

#include <QIcon>
#include <QImage>
#include <QString>

class QPalette;

namespace orvane {

/// How large effects are shown in the catalogue.
inline constexpr QSize pictureSize{144, 90};

/// The file beside the program with all pictures of the catalogue, open while one of these exists.
/// Where it is missing, so are its pictures.
class OpenPictures
{
public:
    OpenPictures();
    ~OpenPictures();
    OpenPictures(const OpenPictures&) = delete;
    OpenPictures& operator=(const OpenPictures&) = delete;
};

/// The name among the open pictures of the moving one of an effect at work, for windows with these
/// colors on a screen with so many pixels to a point.
QString PictureName(const CatalogueRow& row, const QPalette& colors, double pixels);

/// What stands first in that picture, as it stands on a button; else the drawing of the effect
/// inside the program. For many, the pictures are best open already.
QIcon StillPicture(const CatalogueRow& row, const QPalette& colors, double pixels);

/// The picture as it stands on a button: with a thin edge and rounded corners, which are drawn when
/// they are needed, so that a picture of few colors takes little memory.
QIcon Edged(const QImage& picture, const QPalette& colors);

} // namespace orvane
