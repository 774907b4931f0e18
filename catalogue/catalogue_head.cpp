#include "catalogue/catalogue_head.h"

#include "catalogue/catalogue_search_box.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QTabBar>

#include <array>

namespace orvane {

namespace {

/// The words of a tab of the catalogue.
struct TabWords
{
    const char* Caption;
    const char* Tip;
};

constexpr std::array<TabWords, 4> tabs = {{
    {"Image Effects", "Animations, billboards, etc."},
    {"Text Effects", "Scrolling Text, Fading Text, etc."},
    {"Other Special Effects", "Other special effects"},
    {"Favorites", "Your favorite effects and the last ten that you used"},
}};

} // namespace

CatalogueHead::CatalogueHead()
    : TabStrip1(new QTabBar), m_found(new QLabel), txtSearch(new CatalogueSearchBox)
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins({});
    line->addWidget(TabStrip1, 3);
    line->addWidget(m_found, 3);
    line->addWidget(txtSearch, 1);
    txtSearch->setMaximumWidth(30 * fontMetrics().averageCharWidth());
    AddTabs();
    m_found->setObjectName(QStringLiteral("lblFound"));
    m_found->hide();
    connect(txtSearch, &CatalogueSearchBox::textChanged, this, &CatalogueHead::Changed);
    connect(txtSearch, &CatalogueSearchBox::Left, this, &CatalogueHead::EndSearch);
    connect(txtSearch, &CatalogueSearchBox::FirstWanted, this, &CatalogueHead::FirstWanted);
    connect(txtSearch, &CatalogueSearchBox::ListWanted, this, &CatalogueHead::ListWanted);
}

void CatalogueHead::AddTabs()
{
    TabStrip1->setObjectName(QStringLiteral("TabStrip1"));
    TabStrip1->setAccessibleName(QStringLiteral("Kinds of effects"));
    TabStrip1->setDrawBase(false);
    TabStrip1->setExpanding(false);
    TabStrip1->installEventFilter(this);
    for (const TabWords& words : tabs)
        TabStrip1->setTabToolTip(TabStrip1->addTab(QString::fromUtf8(words.Caption)),
                                 QString::fromUtf8(words.Tip));
    connect(TabStrip1, &QTabBar::currentChanged, this, &CatalogueHead::Changed);
    AddTurn(Qt::CTRL | Qt::Key_Tab, 1);
    AddTurn(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, -1);
}

void CatalogueHead::AddTurn(const QKeySequence& keys, int step)
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, step] {
        const int count = TabStrip1->count();
        txtSearch->clear();
        TabStrip1->setCurrentIndex((TabStrip1->currentIndex() + step + count) % count);
    });
}

int CatalogueHead::Tab() const
{
    return TabStrip1->currentIndex();
}

Text CatalogueHead::Typed() const
{
    return FromQt(txtSearch->text());
}

bool CatalogueHead::IsSearching() const
{
    return !Trim(Typed()).empty();
}

void CatalogueHead::ShowFound(std::size_t count)
{
    TabStrip1->setVisible(!IsSearching());
    m_found->setVisible(IsSearching());
    m_found->setText(count == 1 ? QStringLiteral("1 effect found")
                                : QStringLiteral("%1 effects found").arg(count));
}

void CatalogueHead::BeginSearch()
{
    if (!txtSearch->hasFocus())
        m_focusBefore = QApplication::focusWidget();
    txtSearch->setFocus(Qt::ShortcutFocusReason);
    txtSearch->selectAll();
}

bool CatalogueHead::BeginSearchWith(const QKeyEvent& key)
{
    QWidget* before = QApplication::focusWidget();
    if (!txtSearch->BeginWith(key))
        return false;
    m_focusBefore = before;
    return true;
}

void CatalogueHead::EndSearch()
{
    txtSearch->clear();
    if (m_focusBefore != nullptr && m_focusBefore->isVisible())
        m_focusBefore->setFocus();
    else
        TabStrip1->setFocus();
}

bool CatalogueHead::eventFilter(QObject* watched, QEvent* event)
{
    return (event->type() == QEvent::KeyPress &&
            BeginSearchWith(static_cast<const QKeyEvent&>(*event))) ||
           QWidget::eventFilter(watched, event);
}

} // namespace orvane
