#include "effects/page/anti_spam_link.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(AntiSpamLinkTest, SplitsTheAddressOrWritesItPlain)
{
    const std::pair<const char16_t*, AntiSpamLink> cases[] = {
        {u"full", {u"a.b@c.d.org", u"Email me", u"letter.gif", u" Hello there "}},
        {u"text", {u"jane@example.com", u"Write to me"}},
        {u"no_dot", {u"jane@localhost", u"Email me"}},
        {u"no_at", {u"jane.example.com", u"Email me"}},
        {u"plain_subject",
         {u"jane@example.com", u"Email me", u"letter.gif", u"Hello there", false}},
        {u"plain", {u"jane@example.com", u"jane@example.com", u"", u" ", false}},
    };
    Text lines;
    for (const auto& [name, link] : cases) {
        EXPECT_EQ(Check(link), std::nullopt);
        const EffectPayload payload = Generate(link);
        lines += Join({name, u"\t", payload.BODYHTML, u"\n"});
        EXPECT_EQ(payload,
                  (EffectPayload{.Kind = EffectKind::AntiSpamLink,
                                 .HEADHTML = link.chkAntiSpam ? ExpectedText("mail_link_head.html")
                                                              : Text(),
                                 .BODYHTML = payload.BODYHTML}));
    }
    ExpectSameText(ExpectedText("mail_link_lines.tsv"), lines);
}

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
