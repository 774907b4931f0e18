#pragma once

#include "core/text.h"

#include <QLabel>

namespace orvane {

/// A box that shows a picture file of the author's, made smaller when it does not fit.
class PictureBox : public QLabel
{
public:
    /// The box, named `picPreview`, is at least as large as `room`.
    explicit PictureBox(QSize room, QWidget* parent = nullptr);

    /// Shows the picture of a file; a file that holds none leaves the box empty.
    void Load(TextView path);

private:
    QSize m_room;
};

} // namespace orvane
