#pragma once

#include "core/complaint.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orvane {

/// The rows of list boxes that stand beside each other in a window, one text for each box, and the
/// selected row.
struct RowList
{
    std::vector<std::vector<Text>> Rows;
    std::optional<std::size_t> Selected;
    bool operator==(const RowList&) const = default;
};

/// What an author is told when a command on a list of rows finds no row to work on.
struct RowListWords
{
    TextView EditEmpty;
    TextView EditNone;
    TextView RemoveEmpty;
    TextView RemoveNone;
    TextView CannotMoveUp;
    TextView CannotMoveDown;
};

/// The complaint when the list is empty or no row is selected, or nothing when the selected row can
/// be edited.
std::optional<Complaint> CheckEdit(const RowList& list, const RowListWords& words);

/// Removes the selected row and selects the row behind it; none when the last row was removed. A
/// complaint, with the list unchanged, when no row is selected.
std::optional<Complaint> RemoveRow(RowList& list, const RowListWords& words);

/// Exchanges the selected row with the one above or below; it stays selected. A complaint, with the
/// list unchanged, when that is not possible.
std::optional<Complaint> MoveRowUp(RowList& list, const RowListWords& words);
std::optional<Complaint> MoveRowDown(RowList& list, const RowListWords& words);

} // namespace orvane
