#include "core/catalogue_search.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

Text FirstTitle(TextView typed)
{
    const auto found = SearchCatalogue(typed);
    return found.empty() ? Text() : Text(found.front()->Title);
}

TEST(CatalogueSearchTest, FindsEffectsByTheWordsThatAuthorsUse)
{
    const std::pair<TextView, TextView> cases[] = {
        {u"marquee", u"Status Bar Text Ticker"},
        {u"DROP", u"Pulldown Menu"},
        {u"login", u"Password Protection"},
        {u"rollover", u"Image Rollover"}, // by its title, before those with another word for it
        {u"gallery", u"Image Rollover"},
        {u"photo gallery", u"Image Fade"},
        {u"tic bar", u"Status Bar Text Ticker"},
        {u"pop-up n", u"PopUp Window"},
        {u"falling", u"Falling/Floating Images"},
        {u"24", u"IE Web Page Transitions"}, // in its description
        {u"icker", u""},                     // no word begins so
        {u"clock zebra", u""},
        {u" - ", u""},
    };
    for (const auto& [typed, title] : cases)
        EXPECT_EQ(ToUtf8(FirstTitle(typed)), ToUtf8(title)) << ToUtf8(typed);
    EXPECT_EQ(SearchCatalogue(u"password").size(), 1u);
}

} // namespace
} // namespace orvane::testing
