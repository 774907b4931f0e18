#include "effects/page/popup_window_form.h"

#include "core/file_names.h"
#include "services/file_requests.h"
#include "windows/picture.h"
#include "windows/qt_text.h"

#include <QPushButton>
#include <QRadioButton>

namespace orvane {

namespace {

constexpr TextView heading = u"Popup Window";
constexpr TextView subHeading = u"Create a Popup Window that appears when a user clicks on a link, "
                                u"image or when the Web page loads/exits.";

constexpr TextView pageOrImageFilter =
    u"All Files (*.*)|*.*|HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|Image Files "
    u"(*.gif, *.jpg)|*.gif;*.jpg|Text Files (*.txt)|*.txt";

} // namespace

PopupWindowForm::PopupWindowForm(Workbench& bench, QWidget* parent)
    : EffectForm("PopUpWindow", bench, parent)
{
    AddAppearPage();
    AddWindowPage();
    AddButtons(Buttons::Paged);
}

void PopupWindowForm::AddAppearPage()
{
    PageBuilder page = AddPage({heading, subHeading});
    page.Note(u"I want the PopUp Window to appear:");
    page.OptionGroup("optWhenToAppear",
                     {u"when the user loads the Web page", u"when the user exits the Web page",
                      u"when the user clicks a hyperlink", u"when the user clicks an image"});
    for (int i = 0; i < 4; ++i) {
        auto* option = findChild<QRadioButton*>(MemberName("optWhenToAppear", i));
        connect(option, &QRadioButton::toggled, this, &PopupWindowForm::ChooseWhenToAppear);
        m_keys.Watch(*option);
    }
    PageBuilder link = page.Frame(u"Link settings", "frameLinkSettings");
    link.Note({}, "lblLinkExplanation");
    txtLinkItem = new FileNameBox(m_bench.Settings, m_bench.Dialogs);
    txtLinkItem->setObjectName(QStringLiteral("txtLinkItem"));
    QPushButton* browse = link.BrowseButton(
        txtLinkItem, {.Button = "cmdBrowseForImage",
                      .Caption = u"Browse for image...",
                      .Request = BrowseRequest(imageFiles, FolderPurpose::Images)});
    link.Row(u"Hyperlink text:", {txtLinkItem, browse})
        ->setObjectName(QStringLiteral("lblLinkItem"));
    ShowLook(*this, LookOf(PopupWindow{.optWhenToAppear = WhenToAppear::OnHyperlink}));
    page.Fill();
}

void PopupWindowForm::AddWindowPage()
{
    PageBuilder page = AddPage({heading, subHeading, "txtWindowName"});
    page.TextBox("txtWindowName", u"PopUp Window name:",
                 u"This is the name of the window so it can later be referenced (do not include "
                 u"spaces)");
    page.BrowseRow("txtURL", u"Web page URL or image to display in PopUp window:",
                   u"This is  the Web page URL or image filename to be displayed in the PopUp "
                   u"Window",
                   {.Button = "cmdBrowseForWebPageOrImage",
                    .Caption = u"Browse for Web page or image...",
                    .Request = {.Title = u"Browse...",
                                .Filter = Text(pageOrImageFilter),
                                .FilterIndex = 2,
                                .Purpose = FolderPurpose::Links},
                    .Source = m_files.RequiredFileSources.data(),
                    .Then = [this](const Text& path) { TakeSize(path); }});
    txtWidth = page.Narrow(
        page.TextBox("txtWidth", u"PopUp Window width:",
                     u"This is the width of the PopUp Window, specified in pixels", u"pixels"));
    txtHeight = page.Narrow(
        page.TextBox("txtHeight", u"PopUp Window height:",
                     u"This is the height of the PopUp Window, specified in pixels", u"pixels"));
    page.Narrow(page.TextBox(
        "txtHorizLocation", u"Horizontal screen location:",
        u"This is the distance the PopUp Window will be placed from the left side of the "
        u"screen",
        u"pixels from left side of screen"));
    page.Narrow(page.TextBox(
        "txtVertLocation", u"Vertical screen location:",
        u"This is the distance the PopUp Window will be placed from the top of the screen",
        u"pixels from top of screen"));
    AddOtherProperties(page);
    page.Fill();
}

void PopupWindowForm::AddOtherProperties(PageBuilder& page)
{
    PageBuilder other = page.Frame(u"Other PopUp Window properties");
    other.CheckBox("chkShowToolbar", u"Show browser Toolbar",
                   u"This displays the default browser toolbar at the top of the PopUp Window");
    other.CheckBox("chkShowStatusBar", u"Show browser StatusBar",
                   u"This displays the default browser statusbar at the bottom of the PopUp "
                   u"Window");
    other.CheckBox("chkShowLocation", u"Show browser Location box",
                   u"This displays the default browser URL Location box at the top of the PopUp "
                   u"Window");
    other.CheckBox("chkShowMenu", u"Show browser Menu bar",
                   u"This displays the default browser menu bar at the top of the PopUp Window");
    other.CheckBox("chkShowDirectory", u"Show browser Directory buttons",
                   u"This displays the default browser directory buttons at the top of the PopUp "
                   u"Window");
    other.CheckBox("chkShowScrollbars", u"Show browser Scrollbars",
                   u"This displays scrollbars in the PopUp Window");
    other.CheckBox("chkResizable", u"Make browser window resizable",
                   u"This allows the PopUp Window to be resizable");
}

/// Another choice that needs a link asks for it anew.
void PopupWindowForm::ChooseWhenToAppear(bool isOn)
{
    if (!isOn || IsFilling())
        return;
    ShowFields();
    if (!txtLinkItem->isEnabled())
        return;
    txtLinkItem->clear();
    // The arrow keys go through all options.
    if (!m_keys.IsChoosing())
        txtLinkItem->setFocus(Qt::OtherFocusReason);
}

/// A window that shows a picture is as large as the picture.
void PopupWindowForm::TakeSize(const Text& path)
{
    if (!IsPopupPicture(GetFileName(path)))
        return;
    const auto picture = LoadPicture(ToQt(path), {1, 1});
    if (!picture)
        return;
    txtWidth->setText(QString::number(picture->Size.width()));
    txtHeight->setText(QString::number(picture->Size.height()));
}

} // namespace orvane
