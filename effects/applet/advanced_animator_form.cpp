#include "effects/applet/advanced_animator_form.h"

#include "core/file_names.h"
#include "core/pick_lists.h"
#include "effects/applet/img_props_form.h"
#include "services/recent_files.h"
#include "windows/color_swatch.h"
#include "windows/image_list_panel.h"
#include "windows/qt_text.h"
#include "windows/recent_menu.h"
#include "windows/row_form.h"

#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

namespace orvane {

namespace {

constexpr TextView caption = u"Advanced Animation Wizard";
constexpr TextView recentProjects = u"Projects";

} // namespace

AdvancedAnimatorForm::AdvancedAnimatorForm(Workbench& bench, QWidget* parent)
    : EffectForm("Anim", bench, parent),
      m_images(new ImageListPanel(bench, m_files, AnimatorImageList()))
{
    AddMenus();
    const CatalogueRow* row = FindRow(EffectKind::AdvancedAnimator);
    PageBuilder page = AddPage({row->Title, row->Description});
    page.Fill(m_images);
    AddFields(page);
    for (const auto signal : {&RowListPanel::RowSelected, &RowListPanel::RowsChanged})
        connect(m_images->List(), signal, this, [this] {
            SetPropsButton->setEnabled(SetPropsButton->isEnabled() || m_images->List()->Selected());
        });
    connect(m_images->List(), &RowListPanel::EditWanted, this,
            &AdvancedAnimatorForm::SetProperties);
    connect(m_images->List(), &RowListPanel::MenuRequested, this,
            [this](QPoint place) { mnuProperties->popup(place); });
    AddButtons(Buttons::OnePage, "cmdHelp");
    KeepProject(UnnamedProject(Parameters()));
}

void AdvancedAnimatorForm::Open(const Opening& opening)
{
    if (const auto* project = std::get_if<ProjectFile>(&opening))
        return ShowProject(project->Path);
    EffectForm::Open(opening);
    KeepProject(UnnamedProject(Parameters()));
}

void AdvancedAnimatorForm::ShowProject(TextView path)
{
    TakeProject(LoadProject(Project(), path, m_bench.Dialogs, m_bench.Files));
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
        [this] { TakeProject(NewProject(Project(), m_bench.Dialogs, caption)); });
    add(*mnuFile, "mnuFileOpen", u"&Open...", QKeySequence::Open,
        [this] { TakeProject(OpenProject(Project(), m_bench.Dialogs, m_bench.Files)); });
    add(*mnuFile, "mnuFileSave", u"&Save...", {}, [this] { Save(SaveProjectAs); });
    add(*mnuFile, "mnuFileReturnToMainMenu", u"&Return to Main menu", {}, [this] { reject(); });
    mnuFile->addSeparator();
    add(*mnuFile, "mnuFileSaveProject", u"Save pro&ject", QKeySequence::Save,
        [this] { Save(SaveProject); });
    add(*mnuFile, "mnuFileSaveAs", u"Save &as...", Qt::CTRL | Qt::SHIFT | Qt::Key_S,
        [this] { Save(SaveProjectAs); });
    OfferRecentFiles(*AddMenu(*mnuFile, "mnuFileRecent", u"Open re&cent"), recentProjects, m_bench,
                     [this](const Text& path) { ShowProject(path); });
    mnuProperties = AddMenu(*bar, "mnuProperties", u"&Properties");
    add(*mnuProperties, "mnuSetProperties", u"Set &Properties...", {}, [this] { SetProperties(); });
    layout()->setMenuBar(bar);
}

void AdvancedAnimatorForm::AddFields(PageBuilder& page)
{
    // The menu "Properties" has the letter P.
    SetPropsButton = page.Button("SetPropsButton", u"Set &Image Properties");
    SetPropsButton->setEnabled(false);
    connect(SetPropsButton, &QPushButton::clicked, this, &AdvancedAnimatorForm::SetProperties);
    page.Row({}, {new QWidget, SetPropsButton}); // to the right, below the lists
    QLineEdit* width = page.Narrow(page.TextBox("Text20", u"Width (pixels):"));
    QLineEdit* height = page.Narrow(page.TextBox("Text21", u"Height (pixels):"));
    m_images->SetSizeFields(width, height);
    page.ComboBox("Combo3", u"Loop the animation:", CycleCounts, true);
    Label16 = page.ColorSwatch("Label16", u"Background Color:", ColorNotation::Channels);
}

/// Stays as it is: the swatch goes on showing what was picked last.
void AdvancedAnimatorForm::TakeProject(const AnimationProject& project)
{
    const auto shown = Label16->Color();
    SetParameters(project.Animation);
    Label16->SetValue(shown ? ColorText(*shown, ColorNotation::Channels) : Text());
    Label16->SetHiddenValue(project.Animation.BackgroundColor);
    KeepProject(project);
}

void AdvancedAnimatorForm::Save(SaveCommand save)
{
    AnimationProject project = Project();
    if (const auto complaint = CheckProject(project.Animation))
        return ShowComplaint(*complaint);
    if (!save(project, m_bench.Dialogs, m_bench.Files))
        return;
    KeepProject(project);
    Tell(u"Saved");
}

/// Remembers which project is open and what its file holds.
void AdvancedAnimatorForm::KeepProject(const AnimationProject& project)
{
    m_path = project.Path;
    m_saved = project.Saved;
    if (!m_path.empty())
        PutRecentFile(m_bench.Settings, recentProjects, m_path);
    ShowTitle();
}

/// The window's classic words, then the name of the project; the toolkit marks unsaved changes.
void AdvancedAnimatorForm::ShowTitle()
{
    QString name = ToQt(GetFileName(m_path));
    name.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    setWindowTitle(ToQt(caption) + (name.isEmpty() ? name : QStringLiteral(" - ") + name) +
                   QStringLiteral("[*]"));
    setWindowModified(IsModified(Project()));
}

void AdvancedAnimatorForm::SetProperties()
{
    RowListPanel& list = *m_images->List();
    if (!list.Selected())
        return;
    auto* properties = new ImgPropsForm(m_bench, m_files, SelectedRowOf<ImageRow>(list), this);
    properties->Begin([&list, properties] { list.ChangeSelectedRow(TextsOf(properties->Row())); });
}

} // namespace orvane
