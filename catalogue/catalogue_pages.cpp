#include "catalogue/catalogue_pages.h"

#include "catalogue/effect_button.h"
#include "catalogue/effect_picture.h"
#include "catalogue/favorites_page.h"
#include "windows/controls.h"
#include "windows/page_area.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t favoritesTab = 3;
constexpr std::size_t resultsPage = 4;

constexpr SectionWords resultWords{
    u"", u"No effect matches these words. Try fewer or other ones, or press Escape to see all "
         u"effects again."};

EffectRows EffectsOn(CataloguePage page, bool haveButton)
{
    EffectRows effects;
    for (const CatalogueRow& row : Catalogue())
        if (row.HasButton == haveButton && FindCommand(row.MenuCommand)->Page == page)
            effects.push_back(&row);
    return effects;
}

} // namespace

CataloguePages::CataloguePages(MakerFinder makerFor, const Settings& settings, QObject& watcher)
    : m_makerFor(std::move(makerFor)), m_settings(settings), m_watcher(watcher)
{
    ShowTab(0);
}

void CataloguePages::ShowTab(int tab)
{
    if (m_results != nullptr)
        m_results->SetEffects({});
    Show(static_cast<std::size_t>(tab));
}

void CataloguePages::ShowFound(const EffectRows& effects)
{
    Show(resultsPage);
    m_results->SetEffects(effects);
}

void CataloguePages::Show(std::size_t index)
{
    PageArea*& area = m_areas[index];
    if (area == nullptr) {
        QWidget* page = MakePage(index);
        page->installEventFilter(&m_watcher);
        area = new PageArea(page);
        addWidget(area);
    }
    setCurrentWidget(area);
}

QWidget* CataloguePages::MakePage(std::size_t index)
{
    const ButtonMaker make = m_makerFor("cmdSpecialFX");
    if (index == favoritesTab)
        return m_favorites = new FavoritesPage(make, m_makerFor("cmdRecentFX"));
    if (index == resultsPage)
        return m_results = new EffectSection(resultWords, make);
    auto* kind = new EffectSection({}, make);
    kind->setObjectName(MemberName("Picture1", static_cast<int>(index)));
    const auto page = static_cast<CataloguePage>(index);
    kind->SetEffects(EffectsOn(page, true));
    // The buttons of effects that another button opens as well have their place in the group, but
    // are not shown a second time.
    for (const CatalogueRow* row : EffectsOn(page, false)) {
        EffectButton* button = make(*row);
        button->setParent(kind);
        button->hide();
    }
    return kind;
}

bool CataloguePages::ShowsFavorites() const
{
    return currentWidget() == m_areas[favoritesTab];
}

void CataloguePages::Refresh()
{
    if (ShowsFavorites())
        m_favorites->Refresh(m_settings);
    const EffectRows favorites = FavoriteEffects(m_settings);
    const OpenPictures open; // once for all
    for (auto* button : currentWidget()->findChildren<EffectButton*>()) {
        button->DrawPicture();
        button->SetFavorite(std::ranges::find(favorites, &button->Row()) != favorites.end());
    }
}

EffectButton* CataloguePages::FirstButton() const
{
    return static_cast<EffectButton*>(FirstControl(*currentWidget()));
}

void CataloguePages::BringIntoView(EffectButton& button)
{
    static_cast<PageArea*>(currentWidget())->ensureWidgetVisible(&button);
}

} // namespace orvane
