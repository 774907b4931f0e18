#include "windows/number_box.h"

#include "core/numbers.h"
#include "windows/qt_text.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace orvane {

namespace {

/// Long ways are gone in larger steps, and bounds such as 0.2 ask for tenths.
double StepOf(const NumberBounds& bounds)
{
    if (bounds.Least != std::trunc(bounds.Least))
        return 0.1;
    return bounds.Most > 500 ? 10 : 1;
}

} // namespace

NumberBox::NumberBox(ControlName name, const NumberBounds& bounds, QWidget* parent)
    : QLineEdit(parent), m_bounds(bounds), m_upDown(new QWidget(parent))
{
    setObjectName(ToQt(name));
    LeaveAltToAccessKeys(*this);
    auto* buttons = new QVBoxLayout(m_upDown);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(0);
    for (const int direction : {1, -1}) {
        const QString word = direction > 0 ? QStringLiteral("Up") : QStringLiteral("Down");
        auto* button = new QToolButton(m_upDown);
        button->setObjectName(ToQt(name) + word);
        button->setAccessibleName(word);
        button->setArrowType(direction > 0 ? Qt::UpArrow : Qt::DownArrow);
        button->setFixedHeight(sizeHint().height() / 2);
        button->setAutoRepeat(true);
        // The arrow keys do the same from within the box.
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, direction] { Step(direction); });
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

void NumberBox::Step(int direction)
{
    setText(ToQt(NumberToText(
        StepNumber(FromQt(text()), direction * StepOf(m_bounds), m_bounds.Least, m_bounds.Most))));
}

} // namespace orvane
