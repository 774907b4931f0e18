#pragma once

#include "services/row_list.h"
#include "windows/controls.h"

#include <QPoint>
#include <QWidget>

namespace orvane {

class MovableList;

/// One of the lists of a window that speak of the same rows.
struct ListColumn
{
    ControlName Name;
    TextView Header;
};

/// Such lists side by side under their headers: they scroll as one, a row is selected in all of
/// them, dragged in all of them, and Tab stops at the first alone.
class ParallelLists : public QWidget
{
    Q_OBJECT

public:
    ParallelLists(std::vector<ListColumn> columns, TextView rowTip, QWidget* parent = nullptr);

    /// Shows these rows and the selected one.
    void Show(const RowList& list);

signals:
    /// The author selected another row, or none, which is -1.
    void RowSelected(int row);
    /// A double click anywhere, or Enter on a selected row.
    void RowActivated();
    /// Delete on a selected row.
    void RowDeleted();
    /// The selected row was dragged to another place.
    void RowDragged(int place);
    /// A right press on a row, or the menu key, at that place of the screen.
    void MenuRequested(QPoint globalPlace);

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
