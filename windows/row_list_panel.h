#pragma once

#include "core/dialogs.h"
#include "services/removed_rows.h"
#include "services/row_list.h"
#include "windows/parallel_lists.h"

#include <optional>
#include <span>
#include <vector>

class QPushButton;

namespace orvane {

/// What a button beside a list of rows does.
enum class RowCommand
{
    Add,      ///< asks the window for a row by AddWanted()
    Edit,     ///< asks the window to change the selected row by EditWanted()
    Remove,   ///< the panel removes the selected row
    MoveUp,   ///< the panel moves the selected row
    MoveDown, ///< the panel moves the selected row
};

/// The tool tip of such a button, which names the key for the same; empty where there is none.
TextView TipOf(RowCommand command);

/// A button of the panel.
struct RowButton
{
    RowCommand Command;
    ControlName Name;
    TextView Caption;
    TextView Tip = {};         ///< in place of TipOf()
    bool StaysEnabled = false; ///< enabled in an empty list too; a click then tells the author so
};

/// Lists that show the same rows, with buttons that add, edit, remove and move them. Without rows
/// all buttons are disabled but Add and those that stay enabled; with rows but none selected they
/// tell the author so. Ctrl+Z puts removed rows back, one after the other.
class RowListPanel : public QWidget
{
    Q_OBJECT

public:
    RowListPanel(std::vector<ListColumn> columns, const RowListWords& words,
                 std::span<const RowButton> buttons, Dialogs& dialogs, QWidget* parent = nullptr);

    const RowList& Rows() const { return m_list; }

    /// The texts of one list, row by row. Expects the name of a list of this panel.
    std::vector<Text> Column(ControlName name) const;

    /// Puts other texts into one list. Rows are added when it becomes the longest list, and rows at
    /// the end that are empty in all lists are removed. Nothing is selected then, unless the texts
    /// are the same as before, and no removed row comes back. Expects the name of a list of this
    /// panel.
    void SetColumn(ControlName name, const std::vector<Text>& texts);

    /// Whether the panel has a list of that name.
    bool HasColumn(ControlName name) const { return IndexOf(name) < m_columns.size(); }

    /// Adds a row at the end, one text for each list, and selects it.
    void AddRow(std::vector<Text> row);

    /// Selects a row. Expects an existing one.
    void Select(std::size_t row);

    /// Replaces the texts of the selected row, which stays selected. Expects that a row is
    /// selected; throws std::bad_optional_access if none is.
    void ChangeSelectedRow(std::vector<Text> row);

signals:
    /// A button of the command Add was clicked; `button` is its index among the panel's buttons.
    void AddWanted(int button);
    /// The selected row is to be edited: by its button, a double click or Enter.
    void EditWanted();
    /// A row was removed that had this index.
    void RowRemoved(std::size_t row);
    /// The row that was removed last was put back and has this index.
    void RowPutBack(std::size_t row);
    /// A row was moved from one index to another; the rows between moved on by one.
    void RowMoved(std::size_t from, std::size_t to);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::size_t IndexOf(ControlName name) const;
    void Run(RowCommand command, int button);
    void Remove();
    void Move(RowCommand command);
    void MoveTo(std::size_t place);
    void Refresh();
    bool Refused(const std::optional<Complaint>& complaint);

    Dialogs& m_dialogs;
    const std::vector<ListColumn> m_columns;
    const RowListWords m_words;
    RowList m_list;
    RemovedRows<std::vector<Text>> m_removed;
    ParallelLists* m_lists;
    std::vector<QPushButton*> m_rowButtons; ///< those that need a row
};

} // namespace orvane
