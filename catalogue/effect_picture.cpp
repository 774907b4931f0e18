#include "catalogue/effect_picture.h"

#include "windows/qt_text.h"
#include "windows/shared_folder.h"

#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace orvane {

namespace {

constexpr QSize drawingSize{48, 48};
constexpr double cornerRadius = 4;

} // namespace

QString PictureFile(const CatalogueRow& row, const QPalette& colors)
{
    const bool isDark = colors.color(QPalette::Window).lightness() < 128;
    return QStringLiteral("%1/%2_%3.gif")
        .arg(SharedFolder(QStringLiteral("catalogue")), ToQt(row.Picture),
             isDark ? QStringLiteral("dark") : QStringLiteral("light"));
}

QPixmap StillPicture(const CatalogueRow& row, const QPalette& colors, double pixels)
{
    QImageReader reader(PictureFile(row, colors));
    reader.setScaledSize(pictureSize * pixels);
    QPixmap picture = QPixmap::fromImageReader(&reader);
    if (picture.isNull())
        return QIcon(QStringLiteral(":/pictures/%1.svg").arg(ToQt(row.Picture)))
            .pixmap(drawingSize, pixels);
    picture.setDevicePixelRatio(pixels);
    return Edged(picture, colors);
}

QPixmap Edged(QPixmap picture, const QPalette& colors)
{
    QPixmap edged(picture.size());
    edged.setDevicePixelRatio(picture.devicePixelRatio());
    edged.fill(Qt::transparent);
    QPainter painter(&edged);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath edge;
    const QRectF inner = QRectF({}, picture.deviceIndependentSize()).adjusted(0.5, 0.5, -0.5, -0.5);
    edge.addRoundedRect(inner, cornerRadius, cornerRadius);
    painter.setClipPath(edge);
    painter.drawPixmap(0, 0, picture);
    painter.setClipping(false);
    painter.setPen(colors.color(QPalette::Mid));
    painter.drawPath(edge);
    return edged;
}

} // namespace orvane
