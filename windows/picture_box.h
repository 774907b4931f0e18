#pragma once

#include "core/text.h"

#include <QLabel>

namespace orvane {

/// A box that shows a picture file of the author's, made smaller when it does not fit.
class PictureBox : public QLabel
{
public:
    /// The box has the object name `picPreview` and is at least as large as `room`, in pixels.
    explicit PictureBox(QSize room, QWidget* parent = nullptr);

    /// Shows the picture of a file; the box is empty when the file cannot be read as a picture.
    void Load(TextView path);

private:
    QSize m_room;
};

} // namespace orvane
