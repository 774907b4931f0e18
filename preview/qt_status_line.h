#pragma once

#include "core/text.h"

#include <QLabel>

namespace orvane {

/// One line of plain text that is cut at the label's edge and never widens it; every blank counts.
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
