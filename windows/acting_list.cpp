#include "windows/acting_list.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPainter>

namespace orvane {

int ActingList::SelectedRow() const
{
    const QModelIndexList selected = selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

QSize ActingList::sizeHint() const
{
    constexpr int rows = 7;
    return {QListWidget::sizeHint().width(), rows * fontMetrics().lineSpacing()};
}

void ActingList::mouseDoubleClickEvent(QMouseEvent* event)
{
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    emit DoubleClicked();
    if (indexAt(event->position().toPoint()).isValid())
        emit RowDoubleClicked();
}

/// Sends a signal; false, so that the key goes on, when nobody listens to it.
bool ActingList::Tell(void (ActingList::*signal)())
{
    const bool isHeard = isSignalConnected(QMetaMethod::fromSignal(signal));
    if (isHeard)
        emit(this->*signal)();
    return isHeard;
}

void ActingList::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isSelected = SelectedRow() >= 0;
    // Taken here, Enter does not reach the window's default button.
    if (isSelected && (key == Qt::Key_Return || key == Qt::Key_Enter) && Tell(&ActingList::Entered))
        return;
    if (isSelected && key == Qt::Key_Delete && Tell(&ActingList::Deleted))
        return;
    const bool isFirstStep = key == Qt::Key_Down || key == Qt::Key_Up ||
                             (key == Qt::Key_Space && !currentIndex().isValid());
    if (!isSelected && count() > 0 && isFirstStep)
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
}

void ActingList::focusInEvent(QFocusEvent* event)
{
    const bool hadCurrent = currentIndex().isValid();
    QListWidget::focusInEvent(event);
    // The toolkit makes the first row the current one, whose frame looks as if it were selected.
    if (!hadCurrent)
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
}

/// With no row to show it, the list as a whole shows that it has the focus.
void ActingList::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (!hasFocus() || currentIndex().isValid())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().highlight().color());
    painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

QItemSelectionModel::SelectionFlags ActingList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const
{
    const bool isPress = event != nullptr && (event->type() == QEvent::MouseButtonPress ||
                                              event->type() == QEvent::MouseButtonRelease);
    if (isPress && !index.isValid())
        return QItemSelectionModel::NoUpdate;
    return QListWidget::selectionCommand(index, event);
}

} // namespace orvane
