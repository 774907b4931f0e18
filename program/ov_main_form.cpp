#include "program/ov_main_form.h"

#include "catalogue/catalogue_panel.h"
#include "effects/recipe.h"
#include "services/page_requests.h"
#include "windows/file_drop.h"
#include "windows/link_label.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/remember_place.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>

namespace orvane {

OVMainForm::OVMainForm(Workbench& bench) : m_bench(bench)
{
    setObjectName(QStringLiteral("OVMain"));
    setWindowTitle(QStringLiteral("Orvane"));
    AddMenus();
    auto* catalogue = new CataloguePanel(bench.Settings);
    connect(catalogue, &CataloguePanel::EffectWanted, this,
            [this](EffectKind kind) { OpenBy(*FindCommand(RowOf(kind).MenuCommand)); });
    AddWays(*catalogue);
    setCentralWidget(catalogue);
    resize(sizeHint().boundedTo(screen()->availableSize()));
    RememberPlace(*this, bench.Settings);
    const Text masks = Join({pageMasks, u";*", recipeEnding});
    connect(new FileDrop(*this, masks, bench, 1), &FileDrop::Dropped, this,
            [this](const std::vector<Text>& files) {
                if (IsRecipeName(files.front()))
                    emit RecipeWanted(files.front());
                else
                    emit PageEffectsWanted(files.front());
            });
    OpenHelpOnF1(this, bench.Help, help_topics::mainWindow);
}

void OVMainForm::AddMenus()
{
    const auto add = [this](QMenu* menu, ControlName name, TextView caption, auto run) {
        QAction* command = AddCommand(*menu, name, caption);
        connect(command, &QAction::triggered, this, run);
        return command;
    };
    QMenu* file = AddMenu(*menuBar(), "mnuFile", u"&File");
    add(file, "mnuOpenRecipe", u"&Open recipe...", [this] {
        emit RecipeWanted({});
    })->setShortcut(QKeySequence::Open);
    add(file, "mnuBringBack", u"&Bring back a page...", &OVMainForm::BringBackWanted);
    file->addSeparator();
    add(file, "mnuFileExit", u"E&xit", &QWidget::close)->setShortcut(Qt::CTRL | Qt::Key_Q);

    QMenu* edit = AddMenu(*menuBar(), "mnuEdit", u"&Edit");
    add(edit, "mnuEditApplet", u"&Edit Special Effect...", &OVMainForm::EditAppletWanted);
    m_pageEffects = add(edit, "mnuPageEffects", u"E&ffects on a page...",
                        [this] { emit PageEffectsWanted({}); });
    m_pageEffects->setShortcut(Qt::CTRL | Qt::Key_E);
    add(edit, "mnuPreferences", u"&Preferences...", &OVMainForm::PreferencesWanted);

    QMenu* effects = AddMenu(*menuBar(), "mnuAppletS", u"&Special Effects");
    QMenu* image = AddMenu(*effects, "mnuImageEffectsMain", u"&Image Effects");
    QMenu* text = AddMenu(*effects, "mnuTextEffects", u"&Text Effects");
    QMenu* other = AddMenu(*effects, "mnuOtherEffects", u"&Other Special Effects");
    // Behind the first paint, which their fifty rows would hold up.
    QTimer::singleShot(0, this, [=, this] {
        AddEffects(*image, CataloguePage::ImageEffects);
        AddEffects(*text, CataloguePage::TextEffects);
        AddEffects(*other, CataloguePage::OtherEffects);
    });

    QMenu* help = AddMenu(*menuBar(), "mnuHelp", u"&Help");
    add(help, "mnuHelpContents", u"&Contents...",
        [this] { m_bench.Help.ShowTopic(help_topics::contents); });
    m_allEffects = add(help, "mnuSeeThemAll", u"&See them all", &OVMainForm::AllEffectsWanted);
    m_allEffects->setShortcut(Qt::CTRL | Qt::Key_G);
    add(help, "mnuCheckForUpdate", u"Chec&k for update...", &OVMainForm::CheckForUpdate);
    help->addSeparator();
    add(help, "mnuHelpAbout", u"&About...", &OVMainForm::AboutWanted);
}

void OVMainForm::AddWays(CataloguePanel& catalogue)
{
    connect(catalogue.AddWay("lblMakeEffect", u"Make an effect",
                             u"Goes to the pictures; Enter on one opens its wizard"),
            &LinkLabel::Followed, &catalogue, &CataloguePanel::GoToEffects);
    connect(catalogue.AddWay("lblChangeOnPage", u"Change what stands in a page",
                             u"Lists the effects on a Web page (Ctrl+E)"),
            &LinkLabel::Followed, m_pageEffects, &QAction::trigger);
    connect(catalogue.AddWay("lblSeeThemAll", u"See them all",
                             u"Shows every effect at work on one page (Ctrl+G)"),
            &LinkLabel::Followed, m_allEffects, &QAction::trigger);
}

void OVMainForm::AddEffects(QMenu& menu, CataloguePage page)
{
    for (const EffectCommand& command : EffectCommands())
        if (command.Page == page)
            connect(AddCommand(menu, command.Name, command.Caption), &QAction::triggered, this,
                    [this, &command] { OpenBy(command); });
}

void OVMainForm::OpenBy(const EffectCommand& command)
{
    SetModes(m_bench.Core, command.Name);
    emit EffectWanted(command.Kind);
}

void OVMainForm::closeEvent(QCloseEvent* event)
{
    event->accept();
    QCoreApplication::quit();
}

void OVMainForm::CheckForUpdate()
{
    if (!m_bench.Dialogs.Ask(u"You must be connected to the Internet to check for updates.\r\n\r\n"
                             u"Would you like to continue?"))
        return;
    m_bench.Shell.OpenWithShell(
        Join({MakerSiteURL, u"/", u"updatecheck.asp?prog=OV&ver=", Trim(m_bench.Version)}));
}

} // namespace orvane
