#pragma once

#include <algorithm>
#include <cstddef>

namespace orvane {

/// Moves the row at index `from` to index `to`; the rows between shift by one. Expects indexes that
/// exist.
template <class Rows>
void MoveRow(Rows& rows, std::size_t from, std::size_t to)
{
    const auto at = [&rows](std::size_t row) {
        return rows.begin() + static_cast<std::ptrdiff_t>(row);
    };
    if (to < from)
        std::rotate(at(to), at(from), at(from + 1));
    else
        std::rotate(at(from), at(from + 1), at(to + 1));
}

/// Moves the selected row of a list that has `Rows` and `Selected` to index `place`; it stays
/// selected. Expects a selected row and an index that exists.
template <class List>
void MoveSelectedTo(List& list, std::size_t place)
{
    MoveRow(list.Rows, list.Selected.value(), place);
    list.Selected = place;
}

} // namespace orvane
