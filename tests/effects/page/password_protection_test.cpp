#include "effects/page/password_protection.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(PasswordProtectionTest, PutsGateValuesInUnescapedAndEmptyOnesToo)
{
    const std::pair<PasswordProtection, const char16_t*> cases[] = {
        {{}, u"     if (passtext ==\"\")   {window.location = \"\" ;}\r\n else {"},
        {{.GatePassword = u"«GateUrl»\"é☃", .GateUrl = u"a//"},
         u"     if (passtext ==\"«GateUrl»\"é☃\")   {window.location = \"a/\" ;}\r\n"},
    };
    for (auto [gate, line] : cases) {
        Tidy(gate);
        EXPECT_NE(Find(Generate(gate).HEADHTML, line), 0u);
    }
}

TEST(PasswordProtectionTest, MendsTheFieldsOfTheLogin)
{
    PasswordProtection fields{.optScheme = PasswordScheme::Server,
                              .GateUrl = u"kept/",
                              .LandingUrl = u" in.html ",
                              .CgiDirectory = u"  ",
                              .PerlPath = u" "};
    Tidy(fields);
    EXPECT_EQ(fields, (PasswordProtection{.optScheme = PasswordScheme::Server,
                                          .GateUrl = u"kept/",
                                          .LandingUrl = u" in.html "}));
    fields.LandingUrl = u"Www.example.com ";
    fields.CgiDirectory = u"/cgi-bin/";
    Tidy(fields);
    EXPECT_EQ(fields.LandingUrl, u"http://Www.example.com");
    EXPECT_EQ(fields.CgiDirectory, u"/cgi-bin/");
    EXPECT_TRUE(Generate(fields).MadeFiles.at(0).IsSecret);
}

TEST(PasswordProtectionTest, ChecksTheSchemeAndTheLoginButNotTheGate)
{
    PasswordProtection fields;
    EXPECT_EQ(CheckPage(fields, password_pages::scheme)->Words,
              u"Please select a password protection scheme.");
    EXPECT_EQ(CheckPage(fields, password_pages::script), std::nullopt);
    fields.LoginPassword = u" ";
    const auto refused = [&] { return CheckPage(fields, password_pages::server); };
    EXPECT_EQ(refused(), (Complaint{u"Please enter a username.", "LoginUsername"}));
    fields.LoginUsername = u"x";
    EXPECT_EQ(refused(), (Complaint{u"Please enter a password.", "LoginPassword"}));
    fields.LoginPassword = u"y";
    EXPECT_EQ(refused(), (Complaint{u"Please enter a Web page URL.", "LandingUrl"}));
    fields.LandingUrl = u"z";
    EXPECT_EQ(refused(), std::nullopt);
}

TEST(PasswordProtectionTest, ReadsAPastedGateWithoutItsPassword)
{
    PasswordProtection gate;
    ReadTag(gate, {.Whole = ExpectedText("password_gate_one_head.html")});
    EXPECT_EQ(gate, (PasswordProtection{.GateUrl = u"\"http://www.example.com/secret.html"}));
    ReadTag(gate, {.Whole = u"passtext ==\"bob\" window.location = \"a\""});
    EXPECT_EQ(gate, (PasswordProtection{.optPasswordType = PasswordType::Many,
                                        .GatePassword = u"\"bob",
                                        .GateUrl = u"\"a"}));
}

} // namespace
} // namespace orvane::testing
