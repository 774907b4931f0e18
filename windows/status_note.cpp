#include "windows/status_note.h"

#include "windows/qt_text.h"

#include <QAccessible>
#include <QTimer>

namespace orvane {

namespace {

constexpr int shownMilliseconds = 5000;

} // namespace

StatusNote::StatusNote(QWidget* parent) : QLabel(parent), m_away(new QTimer(this))
{
    setObjectName(QStringLiteral("lblNote"));
    setTextFormat(Qt::PlainText);
    m_away->setSingleShot(true);
    m_away->setInterval(shownMilliseconds);
    connect(m_away, &QTimer::timeout, this, &QLabel::clear);
}

void StatusNote::Tell(TextView words)
{
    setText(ToQt(words));
    m_away->start();
    QAccessibleEvent spoken(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

} // namespace orvane
