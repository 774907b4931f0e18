#include "preview/qt_status_line.h"

#include "windows/qt_text.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace orvane {

QtStatusLine::QtStatusLine()
{
    setTextFormat(Qt::PlainText);
}

void QtStatusLine::SetStatus(TextView status)
{
    Text line(status);
    std::replace_if(
        line.begin(), line.end(), [](char16_t character) { return character < u' '; }, u' ');
    setText(ToQt(line));
}

void QtStatusLine::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect room = contentsRect();
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                          foregroundRole());
}

} // namespace orvane
