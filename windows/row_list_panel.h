#pragma once

#include "core/dialogs.h"
#include "services/row_list.h"
#include "windows/parallel_lists.h"

#include <span>

class QPushButton;

namespace orvane {

/// What a button beside a list of rows does.
enum class RowCommand
{
    Add,    ///< the window adds a row
    Edit,   ///< the window changes the selected row
    Remove, ///< the three others are done by the panel
    MoveUp,
    MoveDown,
};

/// A button of the panel.
struct RowButton
{
    RowCommand Command;
    ControlName Name;
    TextView Caption;
    TextView Tip = {};
    bool StaysEnabled = false; ///< without a row it tells the author so
};

/// Lists that speak of the same rows, with buttons that add, edit, remove and move them. Those
/// that need a row are disabled while there is none.
class RowListPanel : public QWidget
{
    Q_OBJECT

public:
    RowListPanel(std::vector<ListColumn> columns, const RowListWords& words,
                 std::span<const RowButton> buttons, Dialogs& dialogs, QWidget* parent = nullptr);

    const RowList& Rows() const { return m_list; }

    /// One list's texts, and other texts for it; rows come and go with the longest list. The
    /// selection goes when the texts are others.
    std::vector<Text> Column(ControlName name) const;
    void SetColumn(ControlName name, const std::vector<Text>& texts);
    bool HasColumn(ControlName name) const { return IndexOf(name) < m_columns.size(); }

    /// Adds a row at the end; the selection stays.
    void AddRow(std::vector<Text> row);

    /// Selects a row. Expects one that is there.
    void Select(std::size_t row);

    /// Changes the selected row, which stays selected. Expects that there is one.
    void ChangeSelectedRow(std::vector<Text> row);

signals:
    /// A button of the command Add was clicked; `button` is its place among the panel's buttons.
    void AddWanted(int button);
    /// The selected row is to be edited: by its button, a double click or Enter.
    void EditWanted();
    /// A row was removed.
    void RowRemoved(std::size_t row);
    /// A row was moved to another place; those between closed up.
    void RowMoved(std::size_t from, std::size_t to);

private:
    std::size_t IndexOf(ControlName name) const;
    void Run(RowCommand command, int button);
    void Move(RowCommand command);
    void MoveTo(std::size_t place);
    void Refresh();
    bool Refused(const std::optional<Complaint>& complaint);

    Dialogs& m_dialogs;
    const std::vector<ListColumn> m_columns;
    const RowListWords m_words;
    RowList m_list;
    ParallelLists* m_lists;
    std::vector<QPushButton*> m_rowButtons; ///< those that need a row
};

} // namespace orvane
