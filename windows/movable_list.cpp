#include "windows/movable_list.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>

namespace orvane {

MovableList::MovableList(const QString& family)
    : m_mimeType(QStringLiteral("application/x-orvane-row-") + family)
{
    setDragDropMode(QAbstractItemView::DragDrop);
}

void MovableList::AddRow()
{
    auto* item = new QListWidgetItem;
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled); // dropped between rows, not on one
    addItem(item);
}

QStringList MovableList::mimeTypes() const
{
    return {m_mimeType};
}

QMimeData* MovableList::mimeData(const QList<QListWidgetItem*>&) const
{
    auto* dragged = new QMimeData;
    dragged->setData(m_mimeType, {});
    return dragged;
}

/// The owner of the rows moves them; what the list itself would take out behind a drag stays.
void MovableList::startDrag(Qt::DropActions actions)
{
    if (SelectedRow() < 0)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(mimeData(selectedItems()));
    drag->setPixmap(viewport()->grab(visualItemRect(item(SelectedRow()))));
    drag->exec(actions);
}

void MovableList::dropEvent(QDropEvent* event)
{
    const QPoint place = event->position().toPoint();
    const QModelIndex over = indexAt(place);
    int gap = over.isValid() ? over.row() : count();
    if (over.isValid() && place.y() > visualRect(over).center().y())
        ++gap;
    stopAutoScroll();
    setState(NoState);
    event->acceptProposedAction();
    emit RowDragged(gap > SelectedRow() ? gap - 1 : gap);
}

} // namespace orvane
