#include "catalogue/catalogue_panel.h"

#include "catalogue/catalogue_head.h"
#include "catalogue/catalogue_pages.h"
#include "catalogue/effect_button.h"
#include "catalogue/effect_description.h"
#include "catalogue/moving_picture.h"
#include "core/catalogue_search.h"
#include "windows/controls.h"
#include "windows/link_label.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace orvane {

CataloguePanel::CataloguePanel(Settings& settings)
    : m_settings(settings),
      m_head(new CatalogueHead),
      m_pages(new CataloguePages([this](ControlName group) { return MakerFor(group); }, settings,
                                 *this)),
      m_description(new EffectDescription),
      m_moving(new MovingPicture(settings)),
      m_favorite(new QAction(this)),
      m_moves(new QAction(QStringLiteral("&Moving Pictures"), this))
{
    m_moving->setParent(this);
    installEventFilter(this);
    auto* lines = new QVBoxLayout(this);
    lines->addWidget(m_head);
    lines->addWidget(m_pages, 1);
    lines->addWidget(m_description);
    AddKeys();
    SetReadingOrder(*this);
}

LinkLabel* CataloguePanel::AddWay(ControlName name, TextView words, TextView tip)
{
    LinkLabel* way = m_description->AddWay(name, words, tip);
    way->installEventFilter(this);
    SetReadingOrder(*this);
    return way;
}

void CataloguePanel::GoToEffects()
{
    if (EffectButton* first = m_pages->FirstButton())
        first->setFocus(Qt::TabFocusReason);
    else
        m_head->BeginSearch();
}

void CataloguePanel::AddKeys()
{
    connect(m_head, &CatalogueHead::Changed, this, &CataloguePanel::ShowPage);
    connect(m_head, &CatalogueHead::FirstWanted, this, [this] {
        EffectButton* first = m_head->IsSearching() ? m_pages->FirstButton() : nullptr;
        if (first != nullptr)
            first->click();
    });
    connect(m_head, &CatalogueHead::ListWanted, this, &CataloguePanel::GoToEffects);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_head,
            &CatalogueHead::BeginSearch);
    m_favorite->setObjectName(QStringLiteral("mnuFavorite"));
    m_favorite->setShortcut(Qt::CTRL | Qt::Key_D);
    m_favorite->setShortcutVisibleInContextMenu(true);
    connect(m_favorite, &QAction::triggered, this, [this] {
        auto* focused = qobject_cast<EffectButton*>(focusWidget());
        ToggleFavoriteOf(m_described != nullptr ? m_described.data() : focused);
    });
    addAction(m_favorite);
    m_moves->setObjectName(QStringLiteral("mnuMovingPictures"));
    m_moves->setCheckable(true);
    m_moves->setChecked(m_moving->IsWanted());
    connect(m_moves, &QAction::toggled, m_moving, &MovingPicture::SetWanted);
}

ButtonMaker CataloguePanel::MakerFor(ControlName group)
{
    return [this, group](const CatalogueRow& row) {
        auto* button = new EffectButton(row, MemberName(group, static_cast<int>(row.Kind)));
        button->installEventFilter(this);
        connect(button, &EffectButton::EffectWanted, this, &CataloguePanel::EffectWanted);
        return button;
    };
}

void CataloguePanel::ShowPage()
{
    const EffectRows found = SearchCatalogue(m_head->Typed());
    m_head->ShowFound(found.size());
    if (m_head->IsSearching())
        m_pages->ShowFound(found);
    else
        m_pages->ShowTab(m_head->Tab());
    Refresh();
    Describe(nullptr);
}

/// Shows the buttons of the page in front as they are to be, and puts all in their order for Tab.
void CataloguePanel::Refresh()
{
    m_pages->Refresh();
    SetReadingOrder(*this);
}

void CataloguePanel::Describe(EffectButton* button)
{
    m_described = button;
    m_description->Show(button);
    m_moving->RestOn(button);
}

void CataloguePanel::TakeButtonEvent(EffectButton& button, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::FocusIn:
        m_pages->BringIntoView(button);
        Describe(&button);
        break;
    case QEvent::Enter:
        Describe(&button);
        break;
    case QEvent::FocusOut: {
        // The button keeps its description while its menu or its wizard is in front.
        const auto reason = static_cast<const QFocusEvent&>(event).reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            Describe(nullptr);
        break;
    }
    case QEvent::Leave:
        Describe(nullptr);
        break;
    case QEvent::ContextMenu:
        ShowMenu(button, static_cast<const QContextMenuEvent&>(event).globalPos());
        break;
    default:
        break;
    }
}

bool CataloguePanel::TakeButtonKey(EffectButton& button, const QKeyEvent& key)
{
    switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        if (EffectButton* next = ButtonTowards(key.key(), button, *m_pages->currentWidget()))
            next->setFocus(Qt::TabFocusReason);
        else if (key.key() == Qt::Key_Up && m_head->IsSearching())
            m_head->BeginSearch();
        return true;
    case Qt::Key_Escape:
        if (m_head->IsSearching())
            m_head->EndSearch();
        return true;
    case Qt::Key_F10:
        if (key.modifiers() != Qt::ShiftModifier)
            return false;
        ShowMenu(button, button.mapToGlobal(button.rect().center()));
        return true;
    default:
        return false;
    }
}

bool CataloguePanel::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<EffectButton*>(watched);
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (button != nullptr && TakeButtonKey(*button, key))
            return true;
        return m_head->BeginSearchWith(key);
    }
    if (button != nullptr)
        TakeButtonEvent(*button, *event);
    else if (event->type() == QEvent::Enter)
        Describe(nullptr);
    return QWidget::eventFilter(watched, event);
}

void CataloguePanel::ShowMenu(EffectButton& button, const QPoint& place)
{
    button.setFocus();
    m_favorite->setText(button.IsFavorite() ? QStringLiteral("Remove from &Favorites")
                                            : QStringLiteral("Add to &Favorites"));
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(m_favorite);
    menu->addAction(m_moves);
    menu->popup(place);
}

void CataloguePanel::ToggleFavoriteOf(const EffectButton* button)
{
    if (button == nullptr)
        return;
    ToggleFavorite(m_settings, button->Row());
    Refresh();
}

void CataloguePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        m_moving->RestOn(nullptr);
    // Back from a wizard, it is the effect used last.
    if (event->type() == QEvent::ActivationChange && m_pages->ShowsFavorites())
        Refresh();
}

void CataloguePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Behind the first paint: the window is up sooner, and the other pages are drawn when wanted.
    QTimer::singleShot(0, this, &CataloguePanel::Refresh);
}

} // namespace orvane
