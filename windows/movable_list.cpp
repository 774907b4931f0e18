#include "windows/movable_list.h"

#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
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

/// At an end of the list a key moves nothing and says nothing: held down, it would say it again and
/// again.
void MovableList::keyPressEvent(QKeyEvent* event)
{
    const bool isUp = event->key() == Qt::Key_Up;
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (SelectedRow() < 0 || modifiers != Qt::AltModifier ||
        (!isUp && event->key() != Qt::Key_Down))
        return ActingList::keyPressEvent(event);
    const int place = SelectedRow() + (isUp ? -1 : 1);
    if (place >= 0 && place < count())
        emit MoveWanted(place);
}

/// The owner of the rows moves them; what the list itself would take out after a drag stays.
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
    emit MoveWanted(gap > SelectedRow() ? gap - 1 : gap);
}

} // namespace orvane
