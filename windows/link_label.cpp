#include "windows/link_label.h"

#include "windows/qt_text.h"

#include <QKeyEvent>

namespace orvane {

LinkLabel::LinkLabel(ControlName name, TextView words, QWidget* parent) : QLabel(parent)
{
    setObjectName(ToQt(name));
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    SetWords(words);
    connect(this, &QLabel::linkActivated, this, &LinkLabel::Followed);
}

void LinkLabel::SetWords(TextView words)
{
    m_words = words;
    setAccessibleName(ToQt(words));
    setText(QStringLiteral("<a href=\"#\">%1</a>").arg(ToQt(words).toHtmlEscaped()));
}

void LinkLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit Followed();
    else
        QLabel::keyPressEvent(event);
}

} // namespace orvane
