#include "catalogue/favorites_page.h"

#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr SectionWords favoriteWords{
    u"Favorites", u"None yet. Press Ctrl+D on an effect, or choose \"Add to Favorites\" from its "
                  u"context menu, to find it here."};
constexpr SectionWords recentWords{u"Last used", u"None yet. Effects that you open are kept here."};

} // namespace

FavoritesPage::FavoritesPage(ButtonMaker makeFavorite, ButtonMaker makeRecent)
    : m_favorites(new EffectSection(favoriteWords, std::move(makeFavorite))),
      m_recent(new EffectSection(recentWords, std::move(makeRecent)))
{
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins({});
    lines->addWidget(m_favorites);
    lines->addWidget(m_recent);
    lines->addStretch(1);
}

void FavoritesPage::Refresh(const Settings& settings)
{
    m_favorites->SetEffects(FavoriteEffects(settings));
    m_recent->SetEffects(RecentEffects(settings));
}

} // namespace orvane
