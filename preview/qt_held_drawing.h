#pragma once

#include <QPointer>

class QWidget;

namespace orvane {

/// Holds back what a window draws while the engine reads its first page: the first drawing with the
/// engine in the window keeps both processors from the page for as long as the reading takes.
class QtHeldDrawing
{
public:
    /// Holds the window's drawing back until End(), but for 300 ms at most.
    void Begin(QWidget& window);
    void End();

private:
    QPointer<QWidget> m_window; ///< null while nothing is held
};

} // namespace orvane
