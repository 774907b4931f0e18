#include "program/ov_main_form.h"

#include "program/catalogue_panel.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenuBar>
#include <QScreen>

namespace orvane {

namespace {

/// A sub-menu of a menu or of the menu bar.
template <class Parent>
QMenu* AddMenu(Parent* parent, TextView name, TextView caption)
{
    QMenu* menu = parent->addMenu(ToQt(caption));
    menu->setObjectName(ToQt(name));
    return menu;
}

template <class Receiver, class Slot>
QAction* AddCommand(QMenu* menu, TextView name, TextView caption, Receiver* receiver, Slot slot)
{
    QAction* command = menu->addAction(ToQt(caption), receiver, slot);
    command->setObjectName(ToQt(name));
    return command;
}

} // namespace

OVMainForm::OVMainForm(Workbench& bench, const std::function<bool(EffectKind)>& isBuilt)
    : m_bench(bench)
{
    setObjectName(QStringLiteral("OVMain"));
    setWindowTitle(QStringLiteral("Orvane"));
    AddMenus();
    for (const EffectCommand& command : EffectCommands())
        findChild<QAction*>(ToQt(command.Name))->setEnabled(isBuilt(command.Kind));
    auto* catalogue = new CataloguePanel(isBuilt);
    connect(catalogue, &CataloguePanel::EffectWanted, this, &OVMainForm::EffectWanted);
    setCentralWidget(catalogue);
    resize(sizeHint().boundedTo(screen()->availableSize()));
    OpenHelpOnF1(this, bench.Help, help_topics::mainWindow);
}

void OVMainForm::AddMenus()
{
    QMenu* file = AddMenu(menuBar(), u"mnuFile", u"&File");
    AddCommand(file, u"mnuFileExit", u"E&xit", this, &QWidget::close)
        ->setShortcut(Qt::CTRL | Qt::Key_Q);

    QMenu* edit = AddMenu(menuBar(), u"mnuEdit", u"&Edit");
    AddCommand(edit, u"mnuEditApplet", u"&Edit Special Effect...", this,
               &OVMainForm::EditAppletWanted);
    AddCommand(edit, u"mnuPreferences", u"&Preferences...", this, &OVMainForm::PreferencesWanted);

    QMenu* effects = AddMenu(menuBar(), u"mnuAppletS", u"&Special Effects");
    AddEffects(AddMenu(effects, u"mnuImageEffectsMain", u"&Image Effects"),
               CataloguePage::ImageEffects);
    AddEffects(AddMenu(effects, u"mnuTextEffects", u"&Text Effects"), CataloguePage::TextEffects);
    AddEffects(AddMenu(effects, u"mnuOtherEffects", u"&Other Special Effects"),
               CataloguePage::OtherEffects);

    QMenu* help = AddMenu(menuBar(), u"mnuHelp", u"&Help");
    AddCommand(help, u"mnuHelpContents", u"&Contents...", this,
               [this] { m_bench.Help.ShowTopic(help_topics::contents); });
    AddCommand(help, u"mnuCheckForUpdate", u"Chec&k for update...", this,
               &OVMainForm::CheckForUpdate);
    help->addSeparator();
    AddCommand(help, u"mnuHelpAbout", u"&About...", this, &OVMainForm::AboutWanted);
}

void OVMainForm::AddEffects(QMenu* menu, CataloguePage page)
{
    for (const EffectCommand& command : EffectCommands())
        if (command.Page == page)
            AddCommand(menu, command.Name, command.Caption, this,
                       [this, &command] { emit EffectWanted(command); });
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
