#pragma once

#include "windows/acting_list.h"

namespace orvane {

/// A list whose selected row can be dragged to another place. Lists that show columns of the same
/// rows take each other's.
class MovableList : public ActingList
{
    Q_OBJECT

public:
    /// Lists of one `family` speak of the same rows; no other list, in this program or another one
    /// that runs, has that text.
    explicit MovableList(const QString& family);

    /// Adds a row at the end.
    void AddRow();

signals:
    /// The selected row was dropped where it is to stand at this place.
    void RowDragged(int place);

protected:
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    void startDrag(Qt::DropActions actions) override;
    void dropEvent(QDropEvent* event) override;

private:
    const QString m_mimeType;
};

} // namespace orvane
