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
        connect(findChild<QRadioButton*>(MemberName("optButtonType", i)), &QRadioButton::clicked,
                this, &AllInOneButtonForm::ChooseType);
    AddTextRow(frame);
    AddTargetRow(frame);
    txtBookmarkURL = frame.TextBox("txtBookmarkURL", u"URL to add to Favorites List:");
    txtBookmarkTitle = frame.TextBox("txtBookmarkTitle", u"Title for Favorites List:");
    page.Example(QStringLiteral("all_in_one_button_sample"), {320, 64});
    page.Fill();
}

void AllInOneButtonForm::AddTextRow(PageBuilder& frame)
{
    txtButtonText = new FileNameBox(m_bench.Settings, m_bench.Dialogs);
    txtButtonText->setObjectName(QStringLiteral("txtButtonText"));
    cmdBrowseForImage = frame.BrowseButton(
        txtButtonText, {.Button = "cmdBrowseForImage",
                        .Caption = u"Browse for image...",
                        .Request = BrowseRequest(imageFiles, FolderPurpose::Images)});
    lblButtonText = frame.Row(u"Button text:", {txtButtonText, cmdBrowseForImage});
    lblButtonText->setObjectName(QStringLiteral("lblButtonText"));
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
    lblURL = frame.Row(u"Web page URL:", {txtURL, cmdBrowsePage, cmdBrowseSound});
    lblURL->setObjectName(QStringLiteral("lblURL"));
}

void AllInOneButtonForm::UpdateForm()
{
    const AllInOneButton button = Parameters();
    m_type = button.optButtonType;
    const ButtonTextBox text = TextBoxOf(m_type);
    lblButtonText->setText(ToQt(text.Label));
    txtButtonText->setAccessibleName(SpokenName(text.Label));
    txtButtonText->setToolTip(ToQt(text.Tip));
    txtButtonText->SetHoldsFile(text.IsFile);
    cmdBrowseForImage->setVisible(text.IsFile);

    const ButtonAction action = ActionOf(button.cboButtonAction);
    const ButtonTargetBox target = TargetBoxOf(action);
    ShowRow(txtURL, !target.Label.empty());
    lblURL->setText(ToQt(target.Label));
    txtURL->setAccessibleName(SpokenName(target.Label));
    txtURL->SetHoldsFile(target.IsFile);
    cmdBrowsePage->setVisible(action == ButtonAction::Link);
    cmdBrowseSound->setVisible(action == ButtonAction::Sound);
    ShowRow(txtBookmarkURL, action == ButtonAction::Favorites);
    ShowRow(txtBookmarkTitle, action == ButtonAction::Favorites);
}

void AllInOneButtonForm::ShowCorrectInputBoxes()
{
    txtButtonText->clear();
    txtURL->clear();
    UpdateForm();
}

void AllInOneButtonForm::ChooseType()
{
    if (Parameters().optButtonType != m_type)
        ShowCorrectInputBoxes();
}

void AllInOneButtonForm::Next()
{
    const int before = Page();
    EffectForm::Next();
    if (Page() == before)
        return;
    if (std::exchange(m_keepsTexts, false))
        UpdateForm();
    else
        ShowCorrectInputBoxes();
}

void AllInOneButtonForm::TakeDraft(TextView draft)
{
    EffectForm::TakeDraft(draft);
    m_keepsTexts = true;
}

} // namespace orvane
