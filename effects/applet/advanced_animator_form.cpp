#include "effects/applet/advanced_animator_form.h"

#include "core/catalogue.h"
#include "core/pick_lists.h"
#include "effects/applet/animation_project.h"
#include "effects/applet/img_props_form.h"
#include "windows/color_swatch.h"
#include "windows/image_list_panel.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>

namespace orvane {

namespace {

constexpr TextView caption = u"Advanced Animation Wizard";

} // namespace

AdvancedAnimatorForm::AdvancedAnimatorForm(Workbench& bench, QWidget* parent)
    : WizardForm(QStringLiteral("Anim"), EffectKind::AdvancedAnimator, bench, parent)
{
    setWindowTitle(ToQt(caption));
    const CatalogueRow* row = FindRow(EffectKind::AdvancedAnimator);
    SetHeading(row->Title, row->Description);
    AddMenus();
    PageBuilder page = AddPage();
    m_images = new ImageListPanel(bench, AnimatorImageList());
    page.Fill(m_images);
    AddFields(page);
    m_images->SetSizeFields(Text20, Text21);
    AddButtons(Buttons::OnePage, QStringLiteral("cmdHelp"));
    connect(m_images, &ImageListPanel::RowSelected, this, [this] {
        SetPropsButton->setEnabled(SetPropsButton->isEnabled() || m_images->Selected());
    });
    connect(m_images, &ImageListPanel::RowDoubleClicked, this,
            &AdvancedAnimatorForm::SetProperties);
    connect(m_images, &ImageListPanel::MenuRequested, this,
            [this](QPoint place) { mnuProperties->popup(place); });
    SetParameters({});
    if (bench.Core.EditMode)
        EditApplet();
}

void AdvancedAnimatorForm::AddMenus()
{
    auto* bar = new QMenuBar(this);
    QMenu* mnuFile = bar->addMenu(QStringLiteral("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    connect(AddCommand(mnuFile, QStringLiteral("mnuFileNew"), u"&New"), &QAction::triggered, this,
            [this] { SetParameters(NewProject(Parameters(), m_bench.Dialogs, caption)); });
    connect(AddCommand(mnuFile, QStringLiteral("mnuFileOpen"), u"&Open..."), &QAction::triggered,
            this,
            [this] { SetParameters(OpenProject(Parameters(), m_bench.Dialogs, m_bench.Files)); });
    connect(AddCommand(mnuFile, QStringLiteral("mnuFileSave"), u"&Save..."), &QAction::triggered,
            this, [this] {
                const AdvancedAnimator animator = Parameters();
                if (const auto complaint = CheckProject(animator))
                    return Report(*complaint);
                SaveProject(animator, m_bench.Dialogs, m_bench.Files);
            });
    connect(AddCommand(mnuFile, QStringLiteral("mnuFileReturnToMainMenu"), u"&Return to Main menu"),
            &QAction::triggered, this, &QDialog::reject);
    mnuProperties = bar->addMenu(QStringLiteral("&Properties"));
    mnuProperties->setObjectName(QStringLiteral("mnuProperties"));
    connect(AddCommand(mnuProperties, QStringLiteral("mnuSetProperties"), u"Set &Properties..."),
            &QAction::triggered, this, &AdvancedAnimatorForm::SetProperties);
    layout()->setMenuBar(bar);
}

QAction* AdvancedAnimatorForm::AddCommand(QMenu* menu, const QString& name, TextView words)
{
    QAction* command = menu->addAction(ToQt(words));
    command->setObjectName(name);
    return command;
}

void AdvancedAnimatorForm::AddFields(PageBuilder& page)
{
    SetPropsButton = page.Button(QStringLiteral("SetPropsButton"), u"Set Image &Properties");
    SetPropsButton->setEnabled(false);
    connect(SetPropsButton, &QPushButton::clicked, this, &AdvancedAnimatorForm::SetProperties);
    page.Row({}, {new QWidget, SetPropsButton}); // to the right, below the lists
    Text20 = page.TextBox(QStringLiteral("Text20"), u"Width (pixels):");
    Text21 = page.TextBox(QStringLiteral("Text21"), u"Height (pixels):");
    Combo3 = page.ComboBox(QStringLiteral("Combo3"), u"Loop the animation:", CycleCounts, true);
    ColorSwatch* Label16 =
        page.ColorSwatch(QStringLiteral("Label16"), u"Background Color:", m_bench.Dialogs);
    connect(Label16, &ColorSwatch::Picked, this,
            [this](std::int32_t color) { m_background = BackgroundOf(color); });
}

AdvancedAnimator AdvancedAnimatorForm::Parameters() const
{
    return {.Rows = m_images->Rows(),
            .AnimationWidth = FromQt(Text20->text()),
            .AnimationHeight = FromQt(Text21->text()),
            .LoopCount = FromQt(Combo3->currentText()),
            .BackgroundColor = m_background};
}

void AdvancedAnimatorForm::SetParameters(const AdvancedAnimator& animator)
{
    m_images->SetRows(animator.Rows);
    Text20->setText(ToQt(animator.AnimationWidth));
    Text21->setText(ToQt(animator.AnimationHeight));
    Combo3->setCurrentIndex(Combo3->findText(ToQt(animator.LoopCount)));
    Combo3->setEditText(ToQt(animator.LoopCount));
    // Stays as it is: the swatch goes on showing what was picked last.
    m_background = animator.BackgroundColor;
}

void AdvancedAnimatorForm::EditApplet()
{
    SetParameters(ReadAdvancedAnimator(m_bench.Core.PastedApplet, m_bench.Core.AppletText));
    m_bench.Core.EditMode = false;
}

void AdvancedAnimatorForm::SetProperties()
{
    const auto selected = m_images->Selected();
    if (!selected)
        return;
    auto* properties = new ImgPropsForm(m_bench, m_images->Rows()[*selected], this);
    properties->setAttribute(Qt::WA_DeleteOnClose);
    connect(properties, &QDialog::accepted, this,
            [this, properties, index = *selected] { m_images->SetRow(index, properties->Row()); });
    properties->open();
}

void AdvancedAnimatorForm::Next()
{
    const AdvancedAnimator animator = Parameters();
    if (const auto complaint = Check(animator))
        return Report(*complaint);
    Deliver(Generate(animator, m_bench.Core.Required));
}

} // namespace orvane
