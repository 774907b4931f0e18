#include "effects/applet/img_props_form.h"

#include "services/recorded_files.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>

namespace orvane {

ImgPropsForm::ImgPropsForm(Workbench& bench, RequiredFiles& files, const ImageRow& row,
                           QWidget* parent)
    : OkCancelForm("ImgProps", u"Image Properties",
                   help_topics::firstEffect + static_cast<int>(EffectKind::AdvancedAnimator), bench,
                   parent),
      m_files(files),
      m_row(row)
{
    setMinimumWidth(100 * fontMetrics().averageCharWidth());
    PageBuilder page = Rows();
    AddPause(page);
    AddSoundAndURL(page);
    AddTransition(page);
    page.Fill();
    AddButtons();
    connect(Text1, &QLineEdit::textChanged, this, [this] { ShowHints(HintsOf(Properties())); });
    Load();
    connect(Check1, &QCheckBox::toggled, this, &ImgPropsForm::WaitForClick);
    // Typed or picked; a second pick of the same item is one as well.
    connect(Combo3, &QComboBox::currentTextChanged, this, &ImgPropsForm::ChooseTransition);
    connect(Combo3, &QComboBox::textActivated, this, &ImgPropsForm::ChooseTransition);
}

void ImgPropsForm::AddPause(PageBuilder& page)
{
    Text1 = page.Narrow(
        page.TextBox("Text1", u"Pause after image is loaded (ms):", u"Specified in milliseconds"));
    page.Note(u"Default is 100 ms.");
    Check1 = page.CheckBox("Check1", u"Pause until user clicks mouse on image");
}

void ImgPropsForm::AddSoundAndURL(PageBuilder& page)
{
    Text3 = page.LockedBrowseRow("Text3", u"Enter sound file to play when image loads:", {},
                                 {.Button = "Command8",
                                  .Caption = u"Browse for sound...",
                                  .Request = {.Title = u"Open",
                                              .Filter = u"All Files (*.*)|*.*|AU Files (*.au)|*.au",
                                              .FilterIndex = 2,
                                              .Purpose = FolderPurpose::Sounds},
                                  .NoBlanks = FileRole::Sound,
                                  .Then = [this](const Text& path) {
                                      RecordRequiredFile(m_files, path, FromQt(Text3->text()));
                                  }});
    Text2 = page.BrowseRow("Text2", u"Type URL to link this image to:", {},
                           {.Button = "cmdBrowseURL",
                            .Caption = u"&Browse for URL...",
                            .Request = {.Title = u"Open",
                                        .Filter = u"All Files (*.*)|*.*",
                                        .Purpose = FolderPurpose::Links}});
}

void ImgPropsForm::AddTransition(PageBuilder& page)
{
    std::vector<TextView> names;
    for (const Transition& transition : Transitions())
        names.push_back(transition.Name);
    Combo3 = page.ComboBox("Combo3", u"Transition to next image:", names, true);
    Combo1 = page.ComboBox("Combo1", u"Direction:", {}, true);
    lblDirection = LabelOf(Combo1);
    lblDirection->setObjectName(QStringLiteral("lblDirection"));
    lblDescription = page.Note({}, "lblDescription");
    // Room for the longest description, so that the window stays still.
    lblDescription->setMinimumHeight(3 * lblDescription->fontMetrics().lineSpacing());
    lblDescription->setAlignment(Qt::AlignTop);
}

void ImgPropsForm::Load()
{
    const ImageProperties properties = PropertiesOf(m_row);
    Text1->setText(ToQt(properties.Pause));
    Text2->setText(ToQt(properties.URL));
    Text3->setText(ToQt(properties.Sound));
    SetComboText(*Combo3, properties.Transition);
    if (const auto choice = OpeningChoice(m_row))
        Show(*choice);
    SetComboText(*Combo1, properties.Direction);
}

ImageProperties ImgPropsForm::Properties() const
{
    return {.Pause = FromQt(Text1->text()),
            .Sound = FromQt(Text3->text()),
            .URL = FromQt(Text2->text()),
            .Transition = FromQt(Combo3->currentText()),
            .Direction = FromQt(Combo1->currentText())};
}

void ImgPropsForm::ChooseTransition(const QString& transition)
{
    if (const auto choice = ChoiceOf(FromQt(transition)))
        Show(*choice);
}

void ImgPropsForm::Show(const DirectionChoice& choice)
{
    Combo1->clear();
    for (const TextView item : choice.Items)
        Combo1->addItem(ToQt(item));
    Combo1->setCurrentIndex(-1);
    Combo1->setEnabled(choice.IsEnabled);
    lblDirection->setText(ToQt(choice.Label));
    lblDescription->setText(ToQt(choice.Description));
}

void ImgPropsForm::WaitForClick(bool isOn)
{
    Text1->setText(isOn ? QStringLiteral("-1") : QString());
    Text1->setEnabled(!isOn);
}

void ImgPropsForm::Accept()
{
    const ImageProperties properties = Properties();
    if (const auto complaint = Check(properties))
        return ShowComplaint(*complaint);
    m_row = WithProperties(m_row, properties);
    accept();
}

} // namespace orvane
