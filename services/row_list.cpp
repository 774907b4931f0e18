#include "services/row_list.h"

#include "services/move_row.h"

namespace orvane {

namespace {

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

std::optional<Complaint> RemoveRow(RowList& list, const RowListWords& words)
{
    if (auto complaint = CheckSelected(list, words.RemoveEmpty, words.RemoveNone))
        return complaint;
    list.Rows.erase(list.Rows.begin() + static_cast<std::ptrdiff_t>(*list.Selected));
    if (*list.Selected >= list.Rows.size())
        list.Selected.reset();
    return std::nullopt;
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
