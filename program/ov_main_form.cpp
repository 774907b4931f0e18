#include "program/ov_main_form.h"

#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int columns = 6;
constexpr QSize pictureSize{48, 48};

/// A tab of the catalogue, with the menu that names the same effects.
struct TabWords
{
    const char* Caption;
    const char* Tip;
};

constexpr std::array<TabWords, 3> tabs = {{
    {"Image Effects", "Animations, billboards, etc."},
    {"Text Effects", "Scrolling Text, Fading Text, etc."},
    {"Other Special Effects", "Other special effects"},
}};

CataloguePage PageOf(const CatalogueRow& row)
{
    const EffectCommand* command = FindCommand(row.MenuCommand);
    return command == nullptr ? CataloguePage::OtherEffects : command->Page;
}

/// "mnuStatusBar" has its picture in "status_bar.svg", "mnuBBWiz" in "bb_wiz.svg".
QString PictureOf(TextView menuCommand)
{
    const QString words = ToQt(menuCommand.substr(3));
    QString name;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const bool endsCapitals = i + 1 < words.size() && words[i + 1].isLower();
        if (i > 0 && words[i].isUpper() && (words[i - 1].isLower() || endsCapitals))
            name += u'_';
        name += words[i].toLower();
    }
    return QStringLiteral(":/pictures/%1.svg").arg(name);
}

/// A title on two lines where it is long, so that the buttons stay narrow.
QString WrappedTitle(TextView title)
{
    QString wrapped = ToQt(title);
    if (wrapped.size() > 14) {
        const qsizetype middle = wrapped.size() / 2;
        const qsizetype before = wrapped.lastIndexOf(u' ', middle);
        const qsizetype behind = wrapped.indexOf(u' ', middle);
        const bool isBeforeNearer =
            behind < 0 || (before >= 0 && middle - before < behind - middle);
        if (const qsizetype place = isBeforeNearer ? before : behind; place >= 0)
            wrapped[place] = u'\n';
    }
    return wrapped;
}

} // namespace

OVMainForm::OVMainForm(Workbench& bench, const std::function<bool(EffectKind)>& isBuilt)
    : m_bench(bench),
      TabStrip1(new QTabBar),
      m_pages(new QStackedWidget),
      Label3(new QLabel),
      Label2(new QLabel)
{
    setObjectName(QStringLiteral("OVMain"));
    setWindowTitle(QStringLiteral("Orvane"));
    AddMenus();
    AddCatalogue(isBuilt);
    for (const EffectCommand& command : EffectCommands())
        findChild<QAction*>(ToQt(command.Name))->setEnabled(isBuilt(command.Kind));
}

void OVMainForm::AddMenus()
{
    const auto addMenu = [this](const char* name, const char* caption) {
        QMenu* menu = menuBar()->addMenu(QString::fromUtf8(caption));
        menu->setObjectName(QString::fromUtf8(name));
        return menu;
    };
    QMenu* file = addMenu("mnuFile", "&File");
    connect(AddCommand(file, "mnuFileExit", "E&xit"), &QAction::triggered, this, &QWidget::close);

    QMenu* edit = addMenu("mnuEdit", "&Edit");
    connect(AddCommand(edit, "mnuEditApplet", "&Edit Special Effect..."), &QAction::triggered, this,
            &OVMainForm::EditAppletWanted);
    connect(AddCommand(edit, "mnuPreferences", "&Preferences..."), &QAction::triggered, this,
            &OVMainForm::PreferencesWanted);

    QMenu* effects = addMenu("mnuAppletS", "&Special Effects");
    AddEffectMenu(effects, "mnuImageEffectsMain", "&Image Effects", CataloguePage::ImageEffects);
    AddEffectMenu(effects, "mnuTextEffects", "&Text Effects", CataloguePage::TextEffects);
    AddEffectMenu(effects, "mnuOtherEffects", "&Other Special Effects",
                  CataloguePage::OtherEffects);

    QMenu* help = addMenu("mnuHelp", "&Help");
    QAction* contents = AddCommand(help, "mnuHelpContents", "&Contents...");
    contents->setShortcut(Qt::Key_F1);
    connect(contents, &QAction::triggered, this,
            [this] { m_bench.Help.ShowTopic(help_topics::contents); });
    connect(AddCommand(help, "mnuCheckForUpdate", "Chec&k for update..."), &QAction::triggered,
            this, &OVMainForm::CheckForUpdate);
    help->addSeparator();
    connect(AddCommand(help, "mnuHelpAbout", "&About..."), &QAction::triggered, this,
            &OVMainForm::AboutWanted);
}

QAction* OVMainForm::AddCommand(QMenu* menu, const char* name, const char* caption)
{
    QAction* command = menu->addAction(QString::fromUtf8(caption));
    command->setObjectName(QString::fromUtf8(name));
    return command;
}

QMenu* OVMainForm::AddEffectMenu(QMenu* parent, const char* name, const char* caption,
                                 CataloguePage page)
{
    QMenu* menu = parent->addMenu(QString::fromUtf8(caption));
    menu->setObjectName(QString::fromUtf8(name));
    for (const EffectCommand& command : EffectCommands()) {
        if (command.Page != page)
            continue;
        QAction* action = menu->addAction(ToQt(command.Caption));
        action->setObjectName(ToQt(command.Name));
        connect(action, &QAction::triggered, this,
                [this, &command] { emit EffectWanted(command); });
    }
    return menu;
}

void OVMainForm::AddCatalogue(const std::function<bool(EffectKind)>& isBuilt)
{
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setDrawBase(false);
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        TabStrip1->addTab(QString::fromUtf8(tabs[i].Caption));
        TabStrip1->setTabToolTip(static_cast<int>(i), QString::fromUtf8(tabs[i].Tip));
        auto* page = new QWidget;
        page->setObjectName(MemberName(QStringLiteral("Picture1"), static_cast<int>(i)));
        page->installEventFilter(this);
        m_grids[i] = new QGridLayout(page);
        m_grids[i]->setSpacing(4);
        m_grids[i]->setRowStretch(8, 1);
        m_pages->addWidget(page);
    }
    for (const CatalogueRow& row : Catalogue())
        if (row.HasButton)
            AddButton(row, isBuilt(row.Kind));
    connect(TabStrip1, &QTabBar::currentChanged, this, [this](int tab) {
        m_pages->setCurrentIndex(tab);
        DrawPictures(tab);
        Describe(nullptr);
    });

    Label3->setObjectName(QStringLiteral("Label3"));
    QFont bold = Label3->font();
    bold.setBold(true);
    Label3->setFont(bold);
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop);
    // Room for the longest description, so that the window stays still under the mouse.
    Label2->setMinimumHeight(3 * Label2->fontMetrics().lineSpacing());

    auto* central = new QWidget;
    central->installEventFilter(this);
    auto* all = new QVBoxLayout(central);
    all->addWidget(TabStrip1);
    all->addWidget(m_pages, 1);
    all->addWidget(Label3);
    all->addWidget(Label2);
    setCentralWidget(central);
}

void OVMainForm::AddButton(const CatalogueRow& row, bool isBuilt)
{
    QGridLayout* grid = m_grids[static_cast<std::size_t>(PageOf(row))];
    auto* button = new QToolButton;
    button->setObjectName(MemberName(QStringLiteral("cmdSpecialFX"), static_cast<int>(row.Kind)));
    button->setAccessibleName(ToQt(row.Title));
    button->setAccessibleDescription(ToQt(row.Description));
    button->setText(WrappedTitle(row.Title));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize(pictureSize);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setEnabled(isBuilt);
    button->setProperty("kind", static_cast<int>(row.Kind));
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this,
            [this, &row] { emit EffectWanted(*FindCommand(row.MenuCommand)); });
    const int place = grid->count();
    grid->addWidget(button, place / columns, place % columns);
}

void OVMainForm::DrawPictures(int page)
{
    for (QToolButton* button : m_pages->widget(page)->findChildren<QToolButton*>()) {
        if (!button->icon().isNull())
            continue;
        const CatalogueRow* row =
            FindRow(static_cast<EffectKind>(button->property("kind").toInt()));
        button->setIcon(QIcon(PictureOf(row->MenuCommand)));
    }
}

void OVMainForm::Describe(const CatalogueRow* row)
{
    Label3->setText(row == nullptr ? QString() : ToQt(row->Title));
    Label2->setText(row == nullptr ? QString() : ToQt(row->Description));
}

bool OVMainForm::eventFilter(QObject* watched, QEvent* event)
{
    const auto kind = static_cast<EffectKind>(watched->property("kind").toInt());
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn)
        Describe(FindRow(kind));
    else if (event->type() == QEvent::Leave)
        Describe(nullptr);
    return QMainWindow::eventFilter(watched, event);
}

void OVMainForm::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // Behind the first paint: the window is up sooner, and the other pages are drawn when wanted.
    QTimer::singleShot(0, this, [this] { DrawPictures(m_pages->currentIndex()); });
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
