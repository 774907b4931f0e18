#include "windows/key_choice.h"

#include <QEvent>

namespace orvane {

void KeyChoice::Watch(QWidget& control)
{
    control.installEventFilter(this);
}

bool KeyChoice::eventFilter(QObject* control, QEvent* event)
{
    const bool chooses = event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel;
    if (!chooses || m_isChoosing)
        return QObject::eventFilter(control, event);
    m_isChoosing = true;
    control->event(event);
    m_isChoosing = false;
    return true;
}

} // namespace orvane
