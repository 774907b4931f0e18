#pragma once

#include <QObject>
#include <QWidget>

namespace orvane {

/// Tells whether a choice in one of its controls is being made by the arrow keys or the wheel,
/// which may go on to the next item; a window that moves the focus after a click then leaves it
/// alone.
class KeyChoice : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Watches a combo box or an option button from now on.
    void Watch(QWidget& control);

    /// Whether such a key or the wheel is being handled right now.
    bool IsChoosing() const { return m_isChoosing; }

protected:
    bool eventFilter(QObject* control, QEvent* event) override;

private:
    bool m_isChoosing = false;
};

} // namespace orvane
