#pragma once

#include "windows/controls.h"

#include <QLabel>

namespace orvane {

/// A label that looks like a link and is followed by a click, Enter or the space bar.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(ControlName name, TextView words, QWidget* parent = nullptr);

    /// Shows other words, which are plain text.
    void SetWords(TextView words);
    Text Words() const;

signals:
    /// The author followed the link.
    void Followed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orvane
