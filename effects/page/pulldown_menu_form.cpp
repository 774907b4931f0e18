#include "effects/page/pulldown_menu_form.h"

#include "services/file_requests.h"
#include "windows/row_form.h"

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

RowListLook ItemList()
{
    return {.Columns = {{"List1", u"Menu items:"}, {"List2", u"Link to this URL:"}},
            .Words = words,
            .Buttons = {{RowCommand::Add, "cmdAddMenuItem", u"&Add Menu item..."},
                        {RowCommand::Add, "cmdAddSeparator", u"Add &separator"},
                        {RowCommand::Edit, "cmdEditMenuItem", u"&Edit Menu item..."},
                        {RowCommand::Remove, "cmdRemoveMenuItem", u"&Remove Menu item"},
                        {RowCommand::MoveUp, "cmdMoveUp", u"Move Up"},
                        {RowCommand::MoveDown, "cmdMoveDown", u"Move Down"}}};
}

void AddItemFields(PageBuilder& page)
{
    page.TextBox("txtMenuItem", u"Menu item text:");
    page.BrowseRow("txtMenuItemURL", u"Link menu item to this Web page:", {},
                   {.Button = "cmdBrowseForURL",
                    .Caption = u"Browse for URL...",
                    .Request = BrowseRequest(pageFiles, FolderPurpose::Links),
                    .GivesFocus = true});
    page.Fill();
}

constexpr RowLook itemWindow{.Name = "PulldownURL",
                             .Title = u"Specify Menu item and URL",
                             .Kind = EffectKind::PulldownMenu,
                             .Letters = 80,
                             .AddFields = &AddItemFields};

} // namespace

PulldownMenuForm::PulldownMenuForm(Workbench& bench, QWidget* parent)
    : EffectForm("Pulldown", bench, parent), m_items(new RowListPanel(ItemList(), bench.Dialogs))
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
    if (button == addItemButton)
        AddRowByWindow<MenuItem>(*m_items, itemWindow, m_bench);
    else
        m_items->AddRow(
            TextsOf(MenuItem{.txtMenuItem = Text(menuSeparator), .txtMenuItemURL = {}}));
}

void PulldownMenuForm::EditItem()
{
    if (const auto complaint = CheckEdit(SelectedRowOf<MenuItem>(*m_items)))
        return ShowComplaint(*complaint);
    EditRowByWindow<MenuItem>(*m_items, itemWindow, m_bench);
}

} // namespace orvane
