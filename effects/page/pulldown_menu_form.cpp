#include "effects/page/pulldown_menu_form.h"

#include "effects/page/pulldown_url_form.h"
#include "windows/row_list_panel.h"

namespace orvane {

namespace {

constexpr RowListWords words{
    .EditEmpty = u"The list of menu items is empty.  Please add a menu item before editing it.",
    .EditNone = u"Select a menu item from the list in order to edit it.",
    .RemoveEmpty = u"The list of Menu items is empty.  Please add a menu item before removing it.",
    .RemoveNone = u"Select a menu item from the list in order to remove it.",
    .CannotMoveUp = u"Select an item in the Menu item list.  You cannot move the first menu item "
                    u"upward.",
    .CannotMoveDown = u"Select an item in the Menu item list.  You cannot move the last menu item "
                      u"downward.",
};

constexpr int addItemButton = 0; ///< its place among the buttons

constexpr RowButton buttons[] = {
    {RowCommand::Add, "cmdAddMenuItem", u"&Add Menu item..."},
    {RowCommand::Add, "cmdAddSeparator", u"Add &separator"},
    {RowCommand::Edit, "cmdEditMenuItem", u"&Edit Menu item..."},
    {RowCommand::Remove, "cmdRemoveMenuItem", u"&Remove Menu item"},
    {RowCommand::MoveUp, "cmdMoveUp", u"Move Up"},
    {RowCommand::MoveDown, "cmdMoveDown", u"Move Down"},
};

} // namespace

PulldownMenuForm::PulldownMenuForm(Workbench& bench, QWidget* parent)
    : EffectForm("Pulldown", bench, parent),
      m_items(new RowListPanel({{"List1", u"Menu items:"}, {"List2", u"Link to this URL:"}}, words,
                               buttons, bench.Dialogs))
{
    PageBuilder page =
        AddPage({u"Dropdown Menu",
                 u"Create dropdown menus with menu items that link to other Web pages.  Get "
                 u"started by clicking the 'Add Menu Item' button below."});
    page.Fill(m_items);
    page.OptionGroup("optDisplay", {u"Display all menu items", u"Display as a dropdown menu"});
    page.ComboBox("cboTarget", u"Target frame (optional, only if using Frames):", menuTargets,
                  true);
    connect(m_items, &RowListPanel::AddWanted, this, &PulldownMenuForm::Add);
    connect(m_items, &RowListPanel::EditWanted, this, &PulldownMenuForm::EditItem);
    AddButtons(Buttons::OnePage);
}

void PulldownMenuForm::Add(int button)
{
    if (button != addItemButton)
        return m_items->AddRow({Text(menuSeparator), {}});
    auto* window = new PulldownURLForm(m_bench, {}, this);
    window->Begin([this, window] {
        const MenuItem item = window->Item();
        m_items->AddRow({item.txtMenuItem, item.txtMenuItemURL});
    });
}

void PulldownMenuForm::EditItem()
{
    const RowList& rows = m_items->Rows();
    const std::vector<Text>& row = rows.Rows.at(rows.Selected.value());
    if (const auto complaint = CheckEdit(row[0]))
        return ShowComplaint(*complaint);
    auto* window = new PulldownURLForm(m_bench, {row[0], row[1]}, this);
    window->Begin([this, window] {
        const MenuItem item = window->Item();
        m_items->ChangeSelectedRow({item.txtMenuItem, item.txtMenuItemURL});
    });
}

} // namespace orvane
