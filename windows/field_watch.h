#pragma once

#include "core/complaint.h"

#include <QObject>
#include <QTimer>

class QWidget;

namespace orvane {

/// One signal for all fields of a window, whatever their controls are.
class FieldWatch : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive the watch.
    explicit FieldWatch(QWidget& window);

    /// Watches the control of a field from now on, or its group of option buttons; does nothing for
    /// a field without one.
    void Add(ControlName field);

signals:
    /// A field was changed, by the author or by the program. A list may not be whole yet.
    void Changed();

    /// Fields were changed. Comes from the event loop, once for all changes since the last time.
    void Settled();

private:
    QWidget& m_window;
    QTimer m_soon;
};

} // namespace orvane
