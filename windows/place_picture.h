#pragma once

#include "windows/picture_box.h"

#include <QPoint>

#include <vector>

namespace orvane {

/// A picture on which the author points at places, which are marked by numbers. A place is in
/// percent of the picture's width and height.
class PlacePicture : public PictureBox
{
    Q_OBJECT

public:
    using PictureBox::PictureBox;

    /// Marks these places, the first by "1" and so on.
    void SetPlaces(std::vector<QPoint> places);

signals:
    /// The author clicked there.
    void Pointed(QPoint place);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Where the picture is within the box; empty without one.
    QRect Picture() const;

    std::vector<QPoint> m_places;
};

} // namespace orvane
