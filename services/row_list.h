#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace orvane {

/// One of several list boxes that show the same rows, each box one field of every row.
struct ListColumn
{
    ControlName Name;
    TextView Header;
    Text (*Shown)(TextView text) = nullptr; ///< what the author sees of a text; null: the text
};

/// The rows of a window's list, the selected one, and those removed from it that can come back.
struct RowList
{
    RowTexts Rows;
    std::optional<std::size_t> Selected;
    std::vector<std::pair<std::size_t, FieldTexts>> Removed =
        {}; ///< each at its index, oldest first
    bool operator==(const RowList&) const = default;
};

/// What an author is told when a command on a list finds no row to work on; nothing where the words
/// are empty.
struct RowListWords
{
    TextView EditEmpty = {};
    TextView EditNone = {};
    TextView RemoveEmpty = {};
    TextView RemoveNone = {};
    TextView CannotMoveUp = {};
    TextView CannotMoveDown = {};
};

/// The words of a list whose rows are called items.
inline constexpr RowListWords itemWords{
    .EditEmpty = u"The list of items is empty.  Please add an item before editing it.",
    .EditNone = u"Select an item from the list in order to edit it.",
    .RemoveEmpty = u"The list of items is empty.  Please add an item before removing it.",
    .RemoveNone = u"Select an item from the list in order to remove it.",
    .CannotMoveUp = u"Select an item in the list.  You cannot move the first item upward.",
    .CannotMoveDown = u"Select an item in the list.  You cannot move the last item downward.",
};

/// The complaint when the list is empty or no row is selected, or nothing when the selected row can
/// be edited.
std::optional<Complaint> CheckEdit(const RowList& list, const RowListWords& words);

/// In front of the selected row, or the end when no row or the last one is selected.
std::size_t PlaceToInsert(const RowList& list);

/// Puts rows in at this index. At the end, the last one of them is then selected; in front of
/// others they leave the row selected that was.
void InsertRows(RowList& list, std::size_t place, RowTexts rows);

/// Removes the selected row, which PutRowBack() brings back, and selects the row behind it; none
/// when the last row was removed. A complaint, with the list unchanged, when no row is selected.
std::optional<Complaint> RemoveRow(RowList& list, const RowListWords& words);

/// Puts the row that was removed last back to its index, or to the end of a list that is too short
/// by now, and selects it; false when none is left to come back.
bool PutRowBack(RowList& list);

/// Moves the selected row to another index; it stays selected and the rows between shift by one.
/// Expects a selected row and an index that exists.
void MoveSelectedTo(RowList& list, std::size_t place);

/// Exchanges the selected row with the one above or below; it stays selected. A complaint, with the
/// list unchanged, when that is not possible.
std::optional<Complaint> MoveRowUp(RowList& list, const RowListWords& words);
std::optional<Complaint> MoveRowDown(RowList& list, const RowListWords& words);

} // namespace orvane
