#pragma once

#include "core/dialogs.h"
#include "services/row_list.h"
#include "windows/controls.h"

#include <QPoint>
#include <QWidget>

#include <optional>
#include <vector>

class QMetaMethod;
class QPushButton;

namespace orvane {

class ParallelLists;

/// What a button beside a list of rows does.
enum class RowCommand
{
    Add,      ///< asks the window for a row by AddWanted()
    Edit,     ///< asks the window to change the selected row by EditWanted()
    Remove,   ///< the panel removes the selected row
    MoveUp,   ///< the panel moves the selected row
    MoveDown, ///< the panel moves the selected row
};

/// A button of the panel.
struct RowButton
{
    RowCommand Command;
    ControlName Name;
    TextView Caption;
    TextView Tip = {};         ///< in place of one that names the key for the same
    bool StaysEnabled = false; ///< enabled in an empty list too; a click then tells the author so
};

/// What a list of rows looks like.
struct RowListLook
{
    std::vector<ListColumn> Columns; ///< the first fields of a row; further ones are not shown
    RowListWords Words;
    std::vector<RowButton> Buttons;
    TextView RowTip = {};
    bool HasButtonsBelow = false; ///< below the lists, not to the right of them
};

/// Lists that show the same rows, with buttons that add, edit, remove and move them. Without rows
/// all buttons are disabled but Add and those that stay enabled; with rows but none selected they
/// tell the author so. Ctrl+Z puts removed rows back, one after the other.
class RowListPanel : public QWidget
{
    Q_OBJECT

public:
    /// The dialogs must outlive the panel.
    RowListPanel(const RowListLook& look, Dialogs& dialogs, QWidget* parent = nullptr);

    const RowTexts& Rows() const { return m_list.Rows; }
    std::optional<std::size_t> Selected() const { return m_list.Selected; }

    /// The texts of the selected row. Throws std::bad_optional_access if none is selected.
    const FieldTexts& SelectedRow() const { return m_list.Rows.at(m_list.Selected.value()); }

    /// The name of the first list box, which is that of the field as well.
    ControlName Name() const { return m_look.Columns.front().Name; }

    /// Shows other rows, none of them selected; no removed row comes back then. The same rows as
    /// before change nothing. Expects a text for each list box in each row.
    void SetRows(RowTexts rows);

    /// Adds a row at the end and selects it.
    void AddRow(FieldTexts row);

    /// Adds rows in front of the selected one, which stays selected; behind the others, and selects
    /// the last of them, when no row or the last one is selected.
    void InsertRows(RowTexts rows);

    /// Selects a row. Expects an existing one.
    void Select(std::size_t row);

    /// Replaces the selected row, which stays selected. Throws std::bad_optional_access if none is
    /// selected.
    void ChangeSelectedRow(FieldTexts row);

    /// Puts the row that was removed last back, if there is one.
    void PutRowBack();

    /// Enables all buttons; from now on they stay so.
    void EnableButtons();

signals:
    /// A button of the command Add was clicked; `button` is its index among the panel's buttons.
    void AddWanted(int button);
    /// The selected row is to be edited: by its button, a double click or Enter. While nobody
    /// listens, Enter goes on to the window's default button.
    void EditWanted();
    /// The rows were shown anew: the author or the program may have changed them.
    void RowsChanged();
    /// The author selected another row, or none, or put a removed one back, which is selected now.
    void RowSelected();
    /// A right press on a row, or the menu key, while a row is selected; a place on the screen.
    void MenuRequested(QPoint globalPlace);

protected:
    void connectNotify(const QMetaMethod& signal) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Arrange();
    void Connect();
    void Run(const RowButton& button, int index);
    void Edit();
    void Remove();
    void Move(const std::optional<Complaint>& complaint);
    void Refresh();
    bool Refused(const std::optional<Complaint>& complaint);

    Dialogs& m_dialogs;
    const RowListLook m_look;
    RowList m_list;
    ParallelLists* m_lists;
    std::vector<QPushButton*> m_rowButtons; ///< those that are disabled without rows
};

} // namespace orvane
