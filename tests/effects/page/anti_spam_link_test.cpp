#include "effects/page/anti_spam_link.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(AntiSpamLinkTest, SplitsOddAddressesAndPutsValuesInUnescaped)
{
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"jane", u"'', '', 'jane'"},
        {u" a@b@c.d ", u"' a', 'b@c', 'd '"},
        {u"@.", u"'', '', ''"},
        {u"o'n «Name»@é.☃", u"'o'n «Name»', 'é', '☃'"},
    };
    for (const auto& [email, pieces] : cases)
        EXPECT_EQ(ToUtf8(Generate({email, u"x"}).BODYHTML),
                  ToUtf8(Join({u"<a href=\"javascript:SendEmail(", pieces, u", '')\">x</a>"})));
}

TEST(AntiSpamLinkTest, ChecksInFieldOrder)
{
    AntiSpamLink link;
    EXPECT_EQ(Check(link), (Complaint{u"Please specify an Email Address.", "Email"}));
    link.Email = u" ";
    EXPECT_EQ(Check(link),
              (Complaint{u"Please specify text or an image to be displayed as the Email link.",
                         "MailToText"}));
    link.txtImage = u"a@b.gif";
    EXPECT_EQ(Check(link), std::nullopt);
    link.MailToText = u"@";
    EXPECT_EQ(Check(link),
              (Complaint{u"Type something other than an email address for the Email link text "
                         u"(such as 'Email me') to prevent your email address from being read by "
                         u"spam mailers.",
                         "MailToText"}));
}

} // namespace
} // namespace orvane::testing
