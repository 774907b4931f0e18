#include "catalogue/effect_picture.h"

#include "windows/qt_text.h"
#include "windows/shared_folder.h"

#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QResource>

#include <utility>

namespace orvane {

namespace {

constexpr double cornerRadius = 4;

int users = 0; ///< of the file with the pictures

QString PicturesFile()
{
    return SharedFolder(QStringLiteral("catalogue.rcc"));
}

class EdgedPicture : public QIconEngine
{
public:
    EdgedPicture(QImage picture, const QColor& edge) : m_picture(std::move(picture)), m_edge(edge)
    {
    }

    void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override
    {
        const double pixels = place.width() / static_cast<double>(pictureSize.width());
        const double half = pixels / 2;
        QPainterPath edge;
        edge.addRoundedRect(QRectF(place).adjusted(half, half, -half, -half), cornerRadius * pixels,
                            cornerRadius * pixels);
        painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter->setClipPath(edge);
        painter->drawImage(place, m_picture);
        painter->setClipping(false);
        painter->setPen(QPen(m_edge, pixels));
        painter->drawPath(edge);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect({}, size), mode, state);
        return drawn;
    }

    QIconEngine* clone() const override { return new EdgedPicture(*this); }

private:
    QImage m_picture;
    QColor m_edge;
};

} // namespace

OpenPictures::OpenPictures()
{
    if (users++ == 0)
        QResource::registerResource(PicturesFile());
}

OpenPictures::~OpenPictures()
{
    if (--users == 0)
        QResource::unregisterResource(PicturesFile());
}

QString PictureName(const CatalogueRow& row, const QPalette& colors, double pixels)
{
    const bool isDark = colors.color(QPalette::Window).lightness() < 128;
    return QStringLiteral(":/catalogue/%1_%2%3.gif")
        .arg(ToQt(row.Picture), isDark ? QStringLiteral("dark") : QStringLiteral("light"),
             pixels > 1 ? QStringLiteral("@2x") : QString());
}

QIcon StillPicture(const CatalogueRow& row, const QPalette& colors, double pixels)
{
    const OpenPictures open;
    // Named, its format is not looked for in the libraries of all others.
    const QImage picture = QImageReader(PictureName(row, colors, pixels), "gif").read();
    if (picture.isNull())
        return QIcon(QStringLiteral(":/pictures/%1.svg").arg(ToQt(row.Picture)));
    // Without transparency its few colors become a palette as they are.
    return Edged(
        picture.convertToFormat(QImage::Format_RGB32).convertToFormat(QImage::Format_Indexed8),
        colors);
}

QIcon Edged(const QImage& picture, const QPalette& colors)
{
    return QIcon(new EdgedPicture(picture, colors.color(QPalette::Mid)));
}

} // namespace orvane
