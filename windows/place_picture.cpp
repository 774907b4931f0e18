#include "windows/place_picture.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace orvane {

void PlacePicture::SetPlaces(std::vector<QPoint> places)
{
    m_places = std::move(places);
    update();
}

QRect PlacePicture::Picture() const
{
    QRect picture(QPoint(), pixmap().size());
    picture.moveCenter(contentsRect().center());
    return picture;
}

void PlacePicture::mousePressEvent(QMouseEvent* event)
{
    const QRect picture = Picture();
    if (event->button() != Qt::LeftButton || !picture.contains(event->pos()))
        return event->ignore();
    const QPoint place = event->pos() - picture.topLeft();
    emit Pointed({place.x() * 100 / picture.width(), place.y() * 100 / picture.height()});
}

void PlacePicture::paintEvent(QPaintEvent* event)
{
    PictureBox::paintEvent(event);
    const QRect picture = Picture();
    if (picture.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int wide = fontMetrics().height() * 3 / 2;
    int number = 0;
    for (const QPoint& place : m_places) {
        QRect spot(0, 0, wide, wide);
        spot.moveCenter(picture.topLeft() + QPoint(picture.width() * place.x() / 100,
                                                   picture.height() * place.y() / 100));
        painter.setPen(Qt::black);
        painter.setBrush(Qt::white);
        painter.drawEllipse(spot);
        painter.drawText(spot, Qt::AlignCenter, QString::number(++number));
    }
}

} // namespace orvane
