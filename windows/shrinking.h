#pragma once

#include "windows/page_rows.h"

#include <QVBoxLayout>
#include <QWidget>

namespace orvane {

/// Lets a part that fills a page give way to what stands below it, down to so many lines, before
/// the page is scrolled. The part stands in this widget, which is shown and hidden with it.
class Shrinking : public QWidget
{
public:
    Shrinking(QWidget* part, int lines)
    {
        auto* all = new QVBoxLayout(this);
        all->setContentsMargins({});
        all->addWidget(part);
        setMinimumHeight(fontMetrics().lineSpacing() * lines);
    }

    /// Else the layout around it would give it the height that its lines want.
    bool hasHeightForWidth() const override { return false; }
};

/// Adds a row with the part in such a widget, which takes the height that is left, and gives that
/// widget.
inline QWidget* FillShrinking(PageRows& page, QWidget* part, int lines)
{
    QWidget* shrinking = page.Fill(new Shrinking(part, lines));
    // Fill() makes it ask for its height.
    QSizePolicy policy = shrinking->sizePolicy();
    policy.setVerticalPolicy(QSizePolicy::Ignored);
    shrinking->setSizePolicy(policy);
    return shrinking;
}

} // namespace orvane
