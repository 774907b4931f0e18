#include "effects/applet/advanced_animator_form.h"

#include "core/pick_lists.h"
#include "effects/applet/animation_project.h"
#include "effects/applet/img_props_form.h"
#include "windows/color_swatch.h"
#include "windows/image_list_panel.h"
#include "windows/qt_text.h"

#include <QLayout>
#include <QMenuBar>
#include <QPushButton>

namespace orvane {

namespace {

constexpr TextView caption = u"Advanced Animation Wizard";

} // namespace

AdvancedAnimatorForm::AdvancedAnimatorForm(Workbench& bench, QWidget* parent)
    : EffectForm("Anim", bench, parent), m_images(new ImageListPanel(bench, AnimatorImageList()))
{
    setWindowTitle(ToQt(caption));
    AddMenus();
    const CatalogueRow* row = FindRow(EffectKind::AdvancedAnimator);
    PageBuilder page = AddPage({row->Title, row->Description});
    page.Fill(m_images);
    AddFields(page);
    connect(m_images, &ImageListPanel::RowSelected, this, [this] {
        SetPropsButton->setEnabled(SetPropsButton->isEnabled() || m_images->Selected());
    });
    connect(m_images, &ImageListPanel::RowActivated, this, &AdvancedAnimatorForm::SetProperties);
    connect(m_images, &ImageListPanel::MenuRequested, this,
            [this](QPoint place) { mnuProperties->popup(place); });
    AddButtons(Buttons::OnePage, "cmdHelp");
}

void AdvancedAnimatorForm::ShowProject(TextView path)
{
    TakeProject(LoadProject(path, m_bench.Dialogs, m_bench.Files).value_or(Parameters()));
}

void AdvancedAnimatorForm::AddMenus()
{
    auto* bar = new QMenuBar(this);
    QMenu* mnuFile = AddMenu(*bar, "mnuFile", u"&File");
    const auto add = [this](QMenu& menu, ControlName name, TextView words, QKeySequence keys,
                            auto run) {
        QAction* command = AddCommand(menu, name, words);
        command->setShortcut(keys);
        connect(command, &QAction::triggered, this, run);
    };
    add(*mnuFile, "mnuFileNew", u"&New", QKeySequence::New,
        [this] { TakeProject(NewProject(Parameters(), m_bench.Dialogs, caption)); });
    add(*mnuFile, "mnuFileOpen", u"&Open...", QKeySequence::Open,
        [this] { TakeProject(OpenProject(Parameters(), m_bench.Dialogs, m_bench.Files)); });
    add(*mnuFile, "mnuFileSave", u"&Save...", QKeySequence::Save, [this] {
        const AdvancedAnimator animator = Parameters();
        if (const auto complaint = CheckProject(animator))
            return Report(*complaint);
        SaveProject(animator, m_bench.Dialogs, m_bench.Files);
    });
    add(*mnuFile, "mnuFileReturnToMainMenu", u"&Return to Main menu", {}, [this] { reject(); });
    mnuProperties = AddMenu(*bar, "mnuProperties", u"&Properties");
    add(*mnuProperties, "mnuSetProperties", u"Set &Properties...", {}, [this] { SetProperties(); });
    layout()->setMenuBar(bar);
}

void AdvancedAnimatorForm::AddFields(PageBuilder& page)
{
    SetPropsButton = page.Button("SetPropsButton", u"Set Image &Properties");
    SetPropsButton->setEnabled(false);
    connect(SetPropsButton, &QPushButton::clicked, this, &AdvancedAnimatorForm::SetProperties);
    page.Row({}, {new QWidget, SetPropsButton}); // to the right, below the lists
    QLineEdit* width = page.TextBox("Text20", u"Width (pixels):");
    m_images->SetSizeFields(width, page.TextBox("Text21", u"Height (pixels):"));
    page.ComboBox("Combo3", u"Loop the animation:", CycleCounts, true);
    Label16 = page.ColorSwatch("Label16", u"Background Color:", ColorNotation::Channels);
}

/// Stays as it is: the swatch goes on showing what was picked last.
void AdvancedAnimatorForm::TakeProject(const AdvancedAnimator& animator)
{
    const auto shown = Label16->Color();
    SetParameters(animator);
    Label16->SetValue(shown ? ColorText(*shown, ColorNotation::Channels) : Text());
    Label16->SetHiddenValue(animator.BackgroundColor);
}

void AdvancedAnimatorForm::SetProperties()
{
    const auto selected = m_images->Selected();
    if (!selected)
        return;
    auto* properties = new ImgPropsForm(m_bench, m_images->Rows()[*selected], this);
    properties->Begin(
        [this, properties, index = *selected] { m_images->SetRow(index, properties->Row()); });
}

} // namespace orvane
