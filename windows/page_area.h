#pragma once

#include <QEvent>
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

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
            FitBar();
        return QScrollArea::event(event);
    }

private:
    /// Takes the scroll bar away where the page has room without it. The toolkit does not: it
    /// measures the page beside the bar, once there is one.
    void FitBar()
    {
        const QSize room = maximumViewportSize();
        const QWidget* page = widget();
        const bool fits = page->hasHeightForWidth() &&
                          page->minimumSizeHint().width() <= room.width() &&
                          page->heightForWidth(room.width()) <= room.height();
        setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    }
};

} // namespace orvane
