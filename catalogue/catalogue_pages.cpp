#include "catalogue/catalogue_pages.h"

#include "catalogue/effect_button.h"
#include "catalogue/favorites_page.h"
#include "windows/controls.h"
#include "windows/page_area.h"

#include <QTimer>

#include <algorithm>

namespace orvane {

namespace {

constexpr int favoritesTab = 3;
constexpr int resultsPage = 4;

constexpr SectionWords resultWords{
    u"", u"No effect matches these words. Try fewer or other ones, or press Escape to see all "
         u"effects again."};

EffectRows EffectsOn(CataloguePage page)
{
    EffectRows effects;
    for (const CatalogueRow& row : Catalogue())
        if (row.HasButton && FindCommand(row.MenuCommand)->Page == page)
            effects.push_back(&row);
    return effects;
}

} // namespace

CataloguePages::CataloguePages(const std::function<ButtonMaker(ControlName group)>& makerFor,
                               const Settings& settings)
    : m_settings(settings),
      m_favorites(new FavoritesPage(makerFor("cmdSpecialFX"), makerFor("cmdRecentFX"))),
      m_results(new EffectSection(resultWords, makerFor("cmdSpecialFX")))
{
    for (int tab = 0; tab < favoritesTab; ++tab) {
        m_kinds.push_back(new EffectSection({}, makerFor("cmdSpecialFX")));
        m_kinds.back()->setObjectName(MemberName("Picture1", tab));
    }
    AddSecondButtons(makerFor("cmdSpecialFX"));
    // The others would ask for as much room, and the first window waits for none of them.
    FillKind(0);
    QTimer::singleShot(0, this, [this] {
        for (int tab = 1; tab < favoritesTab; ++tab)
            FillKind(tab);
    });
    for (EffectSection* kind : m_kinds)
        addWidget(new PageArea(kind));
    addWidget(new PageArea(m_favorites));
    addWidget(new PageArea(m_results));
}

/// The buttons of effects that another button opens as well have their place in the group, but are
/// not shown a second time.
void CataloguePages::AddSecondButtons(const ButtonMaker& make)
{
    for (const CatalogueRow& row : Catalogue())
        if (!row.HasButton) {
            EffectButton* button = make(row);
            button->setParent(
                m_kinds[static_cast<std::size_t>(FindCommand(row.MenuCommand)->Page)]);
            button->hide();
        }
}

void CataloguePages::FillKind(int tab)
{
    m_kinds[static_cast<std::size_t>(tab)]->SetEffects(EffectsOn(static_cast<CataloguePage>(tab)));
}

void CataloguePages::ShowTab(int tab)
{
    m_results->SetEffects({});
    if (tab < favoritesTab)
        FillKind(tab);
    setCurrentIndex(tab);
}

void CataloguePages::ShowFound(const EffectRows& effects)
{
    m_results->SetEffects(effects);
    setCurrentIndex(resultsPage);
}

bool CataloguePages::ShowsFavorites() const
{
    return currentIndex() == favoritesTab;
}

void CataloguePages::Refresh()
{
    if (ShowsFavorites())
        m_favorites->Refresh(m_settings);
    const EffectRows favorites = FavoriteEffects(m_settings);
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

std::vector<QWidget*> CataloguePages::Pages() const
{
    std::vector<QWidget*> pages(m_kinds.begin(), m_kinds.end());
    pages.insert(pages.end(), {m_favorites, m_results});
    return pages;
}

} // namespace orvane
