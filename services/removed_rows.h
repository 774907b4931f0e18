#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace orvane {

/// The rows that were removed from a list and can come back, the last one first.
template <class Row>
class RemovedRows
{
public:
    /// Keeps a row that stood at index `place`.
    void Keep(std::size_t place, Row row) { m_rows.push_back({place, std::move(row)}); }

    /// Forgets them all, as when the list shows other rows.
    void Forget() { m_rows.clear(); }

    /// Puts the row that was removed last back to its place, or to the end of a list that is too
    /// short by now, and selects it; gives its index, or nothing when no row is left to come back.
    /// The list has `Rows` and `Selected`.
    template <class List>
    std::optional<std::size_t> PutBack(List& list)
    {
        if (m_rows.empty())
            return std::nullopt;
        const std::size_t place = std::min(m_rows.back().first, list.Rows.size());
        list.Rows.insert(list.Rows.begin() + static_cast<std::ptrdiff_t>(place),
                         std::move(m_rows.back().second));
        m_rows.pop_back();
        list.Selected = place;
        return place;
    }

private:
    std::vector<std::pair<std::size_t, Row>> m_rows;
};

} // namespace orvane
