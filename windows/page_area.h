#pragma once

#include <QScrollArea>

namespace orvane {

/// Gives its page the room that it asks for, and scrolls it where the window has less.
class PageArea : public QScrollArea
{
public:
    explicit PageArea(QWidget* page)
    {
        // Of a size that is set it does not measure what is to be fitted into the window anyway.
        page->resize(page->size());
        setWidget(page);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override
    {
        QSize wanted = widget()->sizeHint();
        if (widget()->hasHeightForWidth())
            wanted.setHeight(widget()->heightForWidth(wanted.width()));
        return wanted;
    }
    QSize minimumSizeHint() const override { return {80, 60}; }
};

} // namespace orvane
