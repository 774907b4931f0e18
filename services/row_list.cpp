#include "services/row_list.h"

#include <algorithm>
#include <iterator>

namespace orvane {

namespace {

RowTexts::iterator At(RowList& list, std::size_t row)
{
    return list.Rows.begin() + static_cast<std::ptrdiff_t>(row);
}

std::optional<Complaint> CheckSelected(const RowList& list, TextView empty, TextView none)
{
    if (list.Rows.empty())
        return Complaint{Text(empty), {}};
    if (!list.Selected)
        return Complaint{Text(none), {}};
    return std::nullopt;
}

} // namespace

std::optional<Complaint> CheckEdit(const RowList& list, const RowListWords& words)
{
    return CheckSelected(list, words.EditEmpty, words.EditNone);
}

std::size_t PlaceToInsert(const RowList& list)
{
    const bool goesInFront = list.Selected && *list.Selected + 1 < list.Rows.size();
    return goesInFront ? *list.Selected : list.Rows.size();
}

void InsertRows(RowList& list, std::size_t place, RowTexts rows)
{
    if (rows.empty())
        return;
    const bool isAtEnd = place == list.Rows.size();
    list.Rows.insert(At(list, place), std::move_iterator(rows.begin()),
                     std::move_iterator(rows.end()));
    if (isAtEnd)
        list.Selected = list.Rows.size() - 1;
    else if (list.Selected && *list.Selected >= place)
        *list.Selected += rows.size();
}

std::optional<Complaint> RemoveRow(RowList& list, const RowListWords& words)
{
    if (auto complaint = CheckSelected(list, words.RemoveEmpty, words.RemoveNone))
        return complaint;
    const std::size_t row = *list.Selected;
    list.Removed.emplace_back(row, std::move(list.Rows[row]));
    list.Rows.erase(At(list, row));
    if (row >= list.Rows.size())
        list.Selected.reset();
    return std::nullopt;
}

bool PutRowBack(RowList& list)
{
    if (list.Removed.empty())
        return false;
    auto [place, row] = std::move(list.Removed.back());
    list.Removed.pop_back();
    list.Selected = std::min(place, list.Rows.size());
    list.Rows.insert(At(list, *list.Selected), std::move(row));
    return true;
}

void MoveSelectedTo(RowList& list, std::size_t place)
{
    const std::size_t from = list.Selected.value();
    if (place < from)
        std::rotate(At(list, place), At(list, from), At(list, from + 1));
    else
        std::rotate(At(list, from), At(list, from + 1), At(list, place + 1));
    list.Selected = place;
}

std::optional<Complaint> MoveRowUp(RowList& list, const RowListWords& words)
{
    if (!list.Selected || *list.Selected == 0)
        return Complaint{Text(words.CannotMoveUp), {}};
    MoveSelectedTo(list, *list.Selected - 1);
    return std::nullopt;
}

std::optional<Complaint> MoveRowDown(RowList& list, const RowListWords& words)
{
    if (!list.Selected || *list.Selected + 1 >= list.Rows.size())
        return Complaint{Text(words.CannotMoveDown), {}};
    MoveSelectedTo(list, *list.Selected + 1);
    return std::nullopt;
}

} // namespace orvane
