#pragma once

#include "windows/acting_list.h"

namespace orvane {

/// A list whose selected row can be dragged to another place, in this list or in another one that
/// shows a column of the same rows, and moved by Alt+Up and Alt+Down. The list itself moves
/// nothing: the owner of the rows does, when it gets MoveWanted().
class MovableList : public ActingList
{
    Q_OBJECT

public:
    /// `family` is a text that all lists with columns of the same rows share. It must be unique, in
    /// other running programs too: only a row of a list with the same text can be dropped here.
    explicit MovableList(const QString& family);

    /// Adds a row without text at the end.
    void AddRow();

signals:
    /// The selected row is to have this index, counted from 0, once it has moved.
    void MoveWanted(int place);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dropEvent(QDropEvent* event) override;

private:
    const QString m_mimeType;
};

} // namespace orvane
