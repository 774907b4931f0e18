#pragma once

#include "services/row_list.h"
#include "windows/controls.h"

#include <QPoint>
#include <QWidget>

#include <vector>

namespace orvane {

class MovableList;

/// Lists of the same rows, side by side under their headers. They scroll together, a row that is
/// selected or dragged in one of them is so in all, and Tab stops at the first one only.
class ParallelLists : public QWidget
{
    Q_OBJECT

public:
    ParallelLists(std::vector<ListColumn> columns, TextView rowTip, QWidget* parent = nullptr);

    /// Shows these rows, the first line of each text, and the selected row; sends no signal.
    void Show(const RowList& list);

signals:
    /// The author selected another row, or none, which is -1.
    void RowSelected(int row);
    /// A double click anywhere, or Enter on a selected row. While nobody listens, Enter goes on to
    /// the window's default button.
    void RowActivated();
    /// Delete on a selected row.
    void RowDeleted();
    /// The selected row was dragged, or is moved by Alt+Up or Alt+Down, and is to have this index,
    /// counted from 0, once it has moved.
    void MoveWanted(int place);
    /// A right press on a row, or the menu key, at that place on the screen.
    void MenuRequested(QPoint globalPlace);

protected:
    void connectNotify(const QMetaMethod& signal) override;

private:
    MovableList* MakeList(const ListColumn& column);
    bool IsWide(int column) const;
    void Follow(const MovableList& list);
    void SelectInAll(int row);

    const std::vector<ListColumn> m_columns;
    const QString m_family;            ///< what tells these lists from all others
    std::vector<MovableList*> m_lists; ///< one for each column
};

} // namespace orvane
