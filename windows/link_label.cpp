#include "windows/link_label.h"

#include "windows/qt_text.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace orvane {

LinkLabel::LinkLabel(ControlName name, TextView words, QWidget* parent) : QLabel(parent)
{
    setObjectName(ToQt(name));
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::Link);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    SetWords(words);
}

void LinkLabel::SetWords(TextView words)
{
    setAccessibleName(ToQt(words));
    setText(ToQt(words));
}

Text LinkLabel::Words() const
{
    return FromQt(text());
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit Followed();
    else
        QLabel::keyPressEvent(event);
}

void LinkLabel::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Followed();
}

void LinkLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, frame);
}

} // namespace orvane
