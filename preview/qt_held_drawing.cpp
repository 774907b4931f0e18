#include "preview/qt_held_drawing.h"

#include <QTimer>
#include <QWidget>

namespace orvane {

void QtHeldDrawing::Begin(QWidget& window)
{
    m_window = &window;
    window.setUpdatesEnabled(false);
    // The window may outlive this object, and a page that is being read for long.
    QTimer::singleShot(300, &window, [&window] { window.setUpdatesEnabled(true); });
}

void QtHeldDrawing::End()
{
    if (m_window)
        m_window->setUpdatesEnabled(true);
    m_window = nullptr;
}

} // namespace orvane
