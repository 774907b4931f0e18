#pragma once

#include "core/complaint.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orvane {

/// Rows that stand in the lists of a window, one text for each list, and the selected row.
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

/// Why no row can be edited, or nothing when one can.
std::optional<Complaint> CheckEdit(const RowList& list, const RowListWords& words);

/// Removes the selected row, and the row that takes its place is selected, or none behind the last.
std::optional<Complaint> RemoveRow(RowList& list, const RowListWords& words);

/// Exchanges the selected row with its neighbour; the selection follows it.
std::optional<Complaint> MoveRowUp(RowList& list, const RowListWords& words);
std::optional<Complaint> MoveRowDown(RowList& list, const RowListWords& words);

} // namespace orvane
