#pragma once

#include <QWidget>

namespace orvane {

/// Lets a widget that fills a page give way to what stands below it, down to so many lines, before
/// the page is scrolled.
inline void LetShrink(QWidget& widget, int lines)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setVerticalPolicy(QSizePolicy::Ignored);
    widget.setSizePolicy(policy);
    widget.setMinimumHeight(widget.fontMetrics().lineSpacing() * lines);
}

} // namespace orvane
