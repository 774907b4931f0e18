#include "preview/web_view_surface.h"

#include <QChildEvent>

namespace orvane {

PageView::PageView(PageContext& context, QWidget* parent)
    : QWebEngineView(parent), m_context(context)
{
    setContextMenuPolicy(Qt::NoContextMenu);
}

bool PageView::event(QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        // Clicks and keys go to a child that the engine puts in; page windows are children too.
        auto* child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child());
        if (child != nullptr && !child->isWindow()) {
            child->installEventFilter(this);
            Name(*child);
        }
    }
    return QWebEngineView::event(event);
}

void PageView::SetSeen(bool isSeen)
{
    m_isSeen = isSeen;
    for (QObject* child : children())
        if (auto* part = qobject_cast<QWidget*>(child); part != nullptr && !part->isWindow())
            Name(*part);
}

/// Lets the part that the engine puts in be found, or not.
void PageView::Name(QWidget& part)
{
    part.setObjectName(m_isSeen ? "PageSurface" : "");
    part.setAccessibleName("Preview of the page");
    part.setFocusPolicy(m_isSeen ? Qt::StrongFocus : Qt::NoFocus);
}

bool PageView::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::KeyPress ||
        type == QEvent::TouchBegin) {
        m_context.AuthorActed = true;
        if (AuthorActed)
            AuthorActed();
    }
    return QWebEngineView::eventFilter(watched, event);
}

} // namespace orvane
