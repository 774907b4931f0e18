#include "windows/acting_list.h"

#include <QKeyEvent>
#include <QMouseEvent>

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
    if (event->button() == Qt::LeftButton)
        emit DoubleClicked();
}

void ActingList::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isSelected = SelectedRow() >= 0;
    // Taken here, Enter does not reach the window's default button.
    if (isSelected && (key == Qt::Key_Return || key == Qt::Key_Enter))
        emit Entered();
    else if (isSelected && key == Qt::Key_Delete)
        emit Deleted();
    else if (!isSelected && count() > 0 && (key == Qt::Key_Down || key == Qt::Key_Up))
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
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
