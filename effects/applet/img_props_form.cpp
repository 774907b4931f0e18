#include "effects/applet/img_props_form.h"

#include "core/file_names.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

ImgPropsForm::ImgPropsForm(Workbench& bench, const ImageRow& row, QWidget* parent)
    : QDialog(parent), m_bench(bench), m_row(row)
{
    setObjectName(QStringLiteral("ImgProps"));
    setWindowTitle(QStringLiteral("Image Properties"));
    setModal(true);
    setMinimumWidth(100 * fontMetrics().averageCharWidth());
    auto* all = new QVBoxLayout(this);
    auto* body = new QWidget;
    all->addWidget(body, 1);
    PageBuilder page(body);
    AddPause(page);
    AddSoundAndURL(page);
    AddTransition(page);
    page.Fill();
    AddButtons();
    OpenHelpOnF1(this, bench.Help,
                 help_topics::firstEffect + static_cast<int>(EffectKind::AdvancedAnimator));
    Load();
    connect(Check1, &QCheckBox::toggled, this, &ImgPropsForm::WaitForClick);
    // Typed or picked; a second pick of the same item is one as well.
    connect(Combo3, &QComboBox::currentTextChanged, this, &ImgPropsForm::ChooseTransition);
    connect(Combo3, &QComboBox::textActivated, this, &ImgPropsForm::ChooseTransition);
}

void ImgPropsForm::AddPause(PageBuilder& page)
{
    Text1 = page.TextBox(QStringLiteral("Text1"), u"Pause after image is loaded (ms):",
                         u"Specified in milliseconds");
    page.Note(u"Default is 100 ms.");
    Check1 = page.CheckBox(QStringLiteral("Check1"), u"Pause until user clicks mouse on image");
}

void ImgPropsForm::AddSoundAndURL(PageBuilder& page)
{
    Text3 = new FileNameBox(m_bench.Settings, m_bench.Dialogs);
    Text3->setObjectName(QStringLiteral("Text3"));
    QPushButton* sound = page.Button(QStringLiteral("Command8"), u"Browse for sound...");
    connect(sound, &QPushButton::clicked, this, &ImgPropsForm::BrowseForSound);
    page.Row(u"Enter sound file to play when image loads:", {Text3, sound});

    Text2 = new QLineEdit;
    Text2->setObjectName(QStringLiteral("Text2"));
    QPushButton* file = page.Button(QStringLiteral("cmdBrowseURL"), u"&Browse for URL...");
    connect(file, &QPushButton::clicked, this, &ImgPropsForm::BrowseForURL);
    page.Row(u"Type URL to link this image to:", {Text2, file});
}

void ImgPropsForm::AddTransition(PageBuilder& page)
{
    std::vector<TextView> names;
    for (const Transition& transition : Transitions())
        names.push_back(transition.Name);
    Combo3 = page.ComboBox(QStringLiteral("Combo3"), u"Transition to next image:", names, true);
    Combo3->setCompleter(nullptr);
    Combo1 = new QComboBox;
    Combo1->setObjectName(QStringLiteral("Combo1"));
    Combo1->setEditable(true);
    Combo1->setInsertPolicy(QComboBox::NoInsert);
    Combo1->setCompleter(nullptr);
    lblDirection = page.Row(u"Direction:", {Combo1});
    lblDirection->setObjectName(QStringLiteral("lblDirection"));
    lblDescription = page.Note({}, QStringLiteral("lblDescription"));
    // Room for the longest description, so that the window stays still.
    lblDescription->setMinimumHeight(3 * lblDescription->fontMetrics().lineSpacing());
    lblDescription->setAlignment(Qt::AlignTop);
}

void ImgPropsForm::AddButtons()
{
    auto* ok = new QPushButton(QStringLiteral("&OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &ImgPropsForm::Take);
    auto* cancel = new QPushButton(QStringLiteral("&Cancel"));
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* line = new QHBoxLayout;
    line->addStretch(1);
    line->addWidget(ok);
    line->addWidget(cancel);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

void ImgPropsForm::Load()
{
    const ImageProperties properties = PropertiesOf(m_row);
    Text1->setText(ToQt(properties.Pause));
    Text2->setText(ToQt(properties.URL));
    Text3->setText(ToQt(properties.Sound));
    Combo3->setCurrentIndex(Combo3->findText(ToQt(properties.Transition)));
    Combo3->setEditText(ToQt(properties.Transition));
    if (const auto choice = OpeningChoice(m_row))
        Show(*choice);
    Combo1->setEditText(ToQt(properties.Direction));
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

void ImgPropsForm::BrowseForSound()
{
    const auto path = m_bench.Dialogs.OpenFile({.Title = u"Open",
                                                .Filter = u"All Files (*.*)|*.*|AU Files "
                                                          u"(*.au)|*.au",
                                                .FilterIndex = 2});
    if (!path)
        return;
    const TextView name = GetFileName(*path);
    if (const auto complaint = CheckSoundName(name))
        return Report(*complaint);
    Text3->setText(ToQt(name));
    RecordRequiredFile(m_bench.Core, *path, name);
}

void ImgPropsForm::BrowseForURL()
{
    const auto path =
        m_bench.Dialogs.OpenFile({.Title = u"Open", .Filter = u"All Files (*.*)|*.*"});
    if (path)
        Text2->setText(ToQt(GetFileName(*path)));
}

void ImgPropsForm::Take()
{
    const ImageProperties properties = Properties();
    if (const auto complaint = Check(properties))
        return Report(*complaint);
    m_row = WithProperties(m_row, properties);
    accept();
}

void ImgPropsForm::Report(const Complaint& complaint)
{
    m_bench.Dialogs.Say(complaint.Words, complaint.Look);
    if (auto* control = findChild<QWidget*>(QString::fromStdString(complaint.Control));
        control != nullptr && !complaint.Control.empty())
        control->setFocus(Qt::OtherFocusReason);
}

} // namespace orvane
