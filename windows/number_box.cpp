#include "windows/number_box.h"

#include "core/numbers.h"
#include "windows/qt_text.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvane {

NumberBox::NumberBox(ControlName name, int lowest, int highest, QWidget* parent)
    : QLineEdit(parent), m_lowest(lowest), m_highest(highest), m_upDown(new QWidget(parent))
{
    setObjectName(ToQt(name));
    LeaveAltToAccessKeys(*this);
    auto* buttons = new QVBoxLayout(m_upDown);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(0);
    for (const int step : {1, -1}) {
        const QString direction = step > 0 ? QStringLiteral("Up") : QStringLiteral("Down");
        auto* button = new QToolButton(m_upDown);
        button->setObjectName(ToQt(name) + direction);
        button->setAccessibleName(direction);
        button->setArrowType(step > 0 ? Qt::UpArrow : Qt::DownArrow);
        button->setFixedHeight(sizeHint().height() / 2);
        button->setAutoRepeat(true);
        // The arrow keys do the same from within the box.
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, step] { Step(step); });
        buttons->addWidget(button);
    }
}

void NumberBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        Step(1);
    else if (event->key() == Qt::Key_Down)
        Step(-1);
    else
        QLineEdit::keyPressEvent(event);
}

void NumberBox::Step(int step)
{
    setText(QString::number(StepNumber(FromQt(text()), step, m_lowest, m_highest)));
}

} // namespace orvane
