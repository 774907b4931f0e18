#include "effects/page/password_protection_form.h"

#include "tests/support/form_test.h"

#include <QRadioButton>

namespace orvane::testing {
namespace {

using PasswordProtectionFormTest = FormTest<PasswordProtectionForm>;

TEST_F(PasswordProtectionFormTest, TheGateStartsWithOnePasswordOnEachEntry)
{
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Please select a password protection scheme."});
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("optScheme(0)"));
    Click(m_form, "optScheme(0)");
    Click(m_form, "cmdNext");
    ExpectAccessible(m_form);
    Click(m_form, "optPasswordType(1)");
    EXPECT_EQ(ReplaceAll(WordsOf(m_form, "optPasswordType(1)"), u"\n", u" "),
              u"Use different passwords that allow access to different Web pages.  For example, "
              u"typing the password \"bob\" accesses the bob.html Web page, and typing \"sam\" "
              u"will access the sam.html Web page.");
    Click(m_form, "cmdPrevious");
    Click(m_form, "cmdNext");
    Type(m_form, "GatePassword", u"open sesame");
    Type(m_form, "GateUrl", u"secret/");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.TakePayload(),
              Generate({.GatePassword = u"open sesame", .GateUrl = u"secret"}));
    EXPECT_EQ(WordsOf(m_form, "GateUrl"), u"secret");
    EXPECT_TRUE(m_desk.Files.Contents.find(u"/program/password.cgi") ==
                m_desk.Files.Contents.end());
}

TEST_F(PasswordProtectionFormTest, TheLoginWritesItsScriptOrStaysOpen)
{
    const Text script = u"/program/password.cgi";
    Click(m_form, "optScheme(1)");
    for (const char* button : {"cmdNext", "cmdPrevious", "cmdNext"}) {
        Click(m_form, button);
        Click(m_form, "cmdClickHereForHelp");
    }
    EXPECT_EQ(m_desk.Help.Shown, (std::vector<int>{124, 108, 124}));
    ExpectAccessible(m_form);
    Type(m_form, "LoginUsername", u"Zo\u00EB");
    Type(m_form, "LoginPassword", u"secret word");
    Type(m_form, "LandingUrl", u"www.example.com");
    Click(m_form, "ChangeSettings");
    Type(m_form, "CgiDirectory", u"/cgi-bin");
    m_desk.Files.FailOn(script, Fault::PermissionDenied);
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Permission denied"});
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_EQ(m_form.TakePayload(), std::nullopt);
    EXPECT_TRUE(m_desk.Files.Private.contains(script));
    m_form.hide();
    for (const auto& [path, bytes] : m_desk.Files.Contents)
        EXPECT_EQ(bytes.find("secret word"), std::string::npos) << ToUtf8(path);
}

TEST_F(PasswordProtectionFormTest, ADraftsOptionSurvivesTheFirstEntryAndNoSecretIsKept)
{
    m_form.SetParameters({.optScheme = PasswordScheme::Script,
                          .optPasswordType = PasswordType::Many,
                          .GatePassword = u"hidden",
                          .LoginUsername = u"hidden"});
    Press(m_form, Qt::Key_Escape);
    for (auto& [path, draft] : m_desk.Files.Contents)
        draft += "GatePassword: read\n";
    PasswordProtectionForm next(m_desk.Bench);
    next.show();
    Press(*Find<QWidget>(next, "lblTakeUp"), Qt::Key_Return);
    Click(next, "cmdNext");
    EXPECT_EQ(next.Parameters(), (PasswordProtection{.optScheme = PasswordScheme::Script,
                                                     .optPasswordType = PasswordType::Many}));
    Click(next, "cmdPrevious");
    Click(next, "cmdNext");
    EXPECT_TRUE(Find<QRadioButton>(next, "optPasswordType(0)")->isChecked());
}

} // namespace
} // namespace orvane::testing
