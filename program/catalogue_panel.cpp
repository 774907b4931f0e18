#include "program/catalogue_panel.h"

#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int columns = 6;
constexpr QSize pictureSize{48, 48};

/// The words of a tab of the catalogue.
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

bool IsReturn(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

CataloguePanel::CataloguePanel(const std::function<bool(EffectKind)>& isBuilt)
    : TabStrip1(new QTabBar),
      m_pages(new QStackedWidget),
      m_scroller(new QScrollArea),
      Label3(new QLabel),
      Label2(new QLabel)
{
    installEventFilter(this);
    auto* lines = new QVBoxLayout(this);
    lines->addWidget(TabStrip1);
    lines->addWidget(m_scroller, 1);
    m_scroller->setWidget(m_pages);
    m_scroller->setWidgetResizable(true);
    m_scroller->setFrameShape(QFrame::NoFrame);
    m_scroller->setFocusPolicy(Qt::NoFocus);
    AddPages();
    for (const CatalogueRow& row : Catalogue())
        if (row.HasButton)
            AddButton(row, isBuilt(row.Kind));
    AddDescription();
    AddKey(Qt::CTRL | Qt::Key_Tab, 1);
    AddKey(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
}

QSize CataloguePanel::sizeHint() const
{
    return QWidget::sizeHint() + m_pages->sizeHint() - m_scroller->sizeHint();
}

void CataloguePanel::AddPages()
{
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setDrawBase(false);
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        TabStrip1->addTab(QString::fromUtf8(tabs[i].Caption));
        TabStrip1->setTabToolTip(static_cast<int>(i), QString::fromUtf8(tabs[i].Tip));
        auto* page = new QWidget;
        page->setObjectName(MemberName("Picture1", static_cast<int>(i)));
        page->installEventFilter(this);
        m_grids[i] = new QGridLayout(page);
        m_grids[i]->setSpacing(4);
        m_grids[i]->setRowStretch(8, 1);
        m_pages->addWidget(page);
    }
    connect(TabStrip1, &QTabBar::currentChanged, this, [this](int tab) {
        m_pages->setCurrentIndex(tab);
        DrawPictures(tab);
        Describe(nullptr);
    });
}

void CataloguePanel::AddDescription()
{
    Label3->setObjectName(QStringLiteral("Label3"));
    QFont bold = Label3->font();
    bold.setBold(true);
    Label3->setFont(bold);
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop);
    // Room for the longest description, so that the window stays still under the mouse.
    Label2->setMinimumHeight(3 * Label2->fontMetrics().lineSpacing());
    layout()->addWidget(Label3);
    layout()->addWidget(Label2);
}

void CataloguePanel::AddKey(const QKeySequence& keys, int step)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, step] {
        const int count = TabStrip1->count();
        TabStrip1->setCurrentIndex((TabStrip1->currentIndex() + step + count) % count);
    });
}

void CataloguePanel::AddButton(const CatalogueRow& row, bool isBuilt)
{
    QGridLayout* grid = m_grids[static_cast<std::size_t>(PageOf(row))];
    auto* button = new QToolButton;
    button->setObjectName(MemberName("cmdSpecialFX", static_cast<int>(row.Kind)));
    button->setAccessibleName(ToQt(row.Title));
    button->setAccessibleDescription(ToQt(row.Description));
    button->setText(WrappedTitle(row.Title));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize(pictureSize);
    // The picture comes later; its room, and two lines of words, are there from the start.
    button->setMinimumHeight(pictureSize.height() + 3 * fontMetrics().lineSpacing());
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

void CataloguePanel::DrawPictures(int page)
{
    for (QToolButton* button : m_pages->widget(page)->findChildren<QToolButton*>()) {
        if (!button->icon().isNull())
            continue;
        const CatalogueRow* row =
            FindRow(static_cast<EffectKind>(button->property("kind").toInt()));
        button->setIcon(QIcon(QStringLiteral(":/pictures/%1.svg").arg(ToQt(row->Picture))));
    }
}

void CataloguePanel::Describe(const CatalogueRow* row)
{
    Label3->setText(row == nullptr ? QString() : ToQt(row->Title));
    Label2->setText(row == nullptr ? QString() : ToQt(row->Description));
}

bool CataloguePanel::eventFilter(QObject* watched, QEvent* event)
{
    const auto kind = static_cast<EffectKind>(watched->property("kind").toInt());
    if (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn)
        Describe(FindRow(kind));
    else if (event->type() == QEvent::Leave)
        Describe(nullptr);
    else if (auto* button = qobject_cast<QToolButton*>(watched);
             button != nullptr && IsReturn(*event)) {
        button->click();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void CataloguePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Behind the first paint: the window is up sooner, and the other pages are drawn when wanted.
    QTimer::singleShot(0, this, [this] { DrawPictures(m_pages->currentIndex()); });
}

} // namespace orvane
