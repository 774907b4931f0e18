#include "services/chosen_effects.h"

#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

std::vector<std::string> TitlesOf(const EffectRows& effects)
{
    std::vector<std::string> titles;
    for (const CatalogueRow* row : effects)
        titles.push_back(ToUtf8(row->Title));
    return titles;
}

TEST(ChosenEffectsTest, KeepTheLastTenInFront)
{
    FakeSettings settings;
    for (int kind = 1; kind <= 13; ++kind)
        RememberEffect(settings, static_cast<EffectKind>(kind));
    RememberEffect(settings, EffectKind::StatusBarTicker);
    const EffectRows recent = RecentEffects(settings);
    EXPECT_EQ(recent.size(), 10u);
    EXPECT_EQ(recent.front()->Kind, EffectKind::StatusBarTicker);
    EXPECT_EQ(recent.back()->Kind, EffectKind::DigitalClock);
}

TEST(ChosenEffectsTest, FavoritesComeAndGoAndUnknownNamesArePassedOver)
{
    FakeSettings settings;
    settings.Stored[{u"Orvane", u"Catalogue", u"Favorites"}] = u"  mnuGone mnuClock mnuClock ";
    ToggleFavorite(settings, *FindRow(EffectKind::Tooltips));
    EXPECT_EQ(TitlesOf(FavoriteEffects(settings)),
              (std::vector<std::string>{"Digital Clock", "Tooltips"}));
    ToggleFavorite(settings, *FindRow(EffectKind::DigitalClock));
    EXPECT_EQ(settings.Stored.at({u"Orvane", u"Catalogue", u"Favorites"}), u"mnuTooltip");
}

} // namespace
} // namespace orvane::testing
