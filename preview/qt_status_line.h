#pragma once

#include "core/text.h"

#include <QLabel>

namespace orvane {

/// One line of plain text, shortened with "..." to the width of the label, which it never widens.
/// Several blanks in a row are all shown.
class QtStatusLine : public QLabel
{
public:
    QtStatusLine();

    /// Shows what a page wrote; a control character becomes a blank.
    void SetStatus(TextView status);

    QSize sizeHint() const override { return {0, QLabel::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orvane
