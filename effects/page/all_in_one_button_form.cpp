#include "effects/page/all_in_one_button_form.h"

#include "services/file_requests.h"
#include "windows/qt_text.h"

#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace orvane {

namespace {

constexpr TextView heading = u"All-in-One Button";
constexpr TextView subHeading =
    u"Create a button, link or image that links to another Web page, plays a sound, closes the "
    u"current browser window, add to Favorites List and much more!";

} // namespace

AllInOneButtonForm::AllInOneButtonForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmButton", bench, parent)
{
    AddActionPage();
    AddPropertiesPage();
    AddButtons(Buttons::Paged);
}

void AllInOneButtonForm::AddActionPage()
{
    PageBuilder page = AddPage({heading, subHeading});
    page.ComboBox("cboButtonAction", u"Button action:", buttonActions, false);
    page.Fill();
}

void AllInOneButtonForm::AddPropertiesPage()
{
    PageBuilder page = AddPage({heading, subHeading});
    PageBuilder frame = page.Frame(u"Button properties");
    frame.OptionGroup("optButtonType", {u"Button", u"Hyperlink", u"Image"});
    for (int i = 0; i < 3; ++i)
        connect(findChild<QRadioButton*>(MemberName("optButtonType", i)), &QRadioButton::toggled,
                this, &AllInOneButtonForm::ChooseType);
    AddTextRow(frame);
    AddTargetRow(frame);
    frame.TextBox("txtBookmarkURL", u"URL to add to Favorites List:");
    frame.TextBox("txtBookmarkTitle", u"Title for Favorites List:");
    page.Example(QStringLiteral("all_in_one_button_sample"), {320, 64});
    page.Fill();
}

void AllInOneButtonForm::AddTextRow(PageBuilder& frame)
{
    txtButtonText = new FileNameBox(m_bench.Settings, m_bench.Dialogs);
    txtButtonText->setObjectName(QStringLiteral("txtButtonText"));
    QPushButton* browse = frame.BrowseButton(
        txtButtonText, {.Button = "cmdBrowseForImage",
                        .Caption = u"Browse for image...",
                        .Request = BrowseRequest(imageFiles, FolderPurpose::Images)});
    frame.Row(u"Button text:", {txtButtonText, browse})
        ->setObjectName(QStringLiteral("lblButtonText"));
}

void AllInOneButtonForm::AddTargetRow(PageBuilder& frame)
{
    txtURL = new FileNameBox(m_bench.Settings, m_bench.Dialogs);
    txtURL->setObjectName(QStringLiteral("txtURL"));
    cmdBrowsePage =
        frame.BrowseButton(txtURL, {.Button = "cmdBrowse",
                                    .Caption = u"Browse...",
                                    .Request = BrowseRequest(pageFiles, FolderPurpose::Links)});
    cmdBrowseSound =
        frame.BrowseButton(txtURL, {.Button = "cmdBrowse",
                                    .Caption = u"Browse...",
                                    .Request = BrowseRequest(soundFiles, FolderPurpose::Sounds)});
    frame.Row(u"Web page URL:", {txtURL, cmdBrowsePage, cmdBrowseSound})
        ->setObjectName(QStringLiteral("lblURL"));
}

/// The two buttons have one name, so that no look can tell them apart.
void AllInOneButtonForm::UpdateForm()
{
    const ButtonAction action = ActionOf(Parameters().cboButtonAction);
    cmdBrowsePage->setVisible(action == ButtonAction::Link);
    cmdBrowseSound->setVisible(action == ButtonAction::Sound);
}

void AllInOneButtonForm::ShowCorrectInputBoxes()
{
    txtButtonText->clear();
    txtURL->clear();
}

void AllInOneButtonForm::ChooseType(bool isOn)
{
    if (isOn && !IsFilling())
        ShowCorrectInputBoxes();
}

void AllInOneButtonForm::Next()
{
    const int before = Page();
    EffectForm::Next();
    if (Page() != before && !std::exchange(m_keepsTexts, false))
        ShowCorrectInputBoxes();
}

void AllInOneButtonForm::TakeDraft(TextView draft)
{
    EffectForm::TakeDraft(draft);
    m_keepsTexts = true;
}

} // namespace orvane
