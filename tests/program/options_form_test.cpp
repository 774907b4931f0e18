#include "program/options_form.h"

#include "program/about_form.h"
#include "services/preferences.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace orvane::testing {
namespace {

class OptionsFormTest : public ::testing::Test
{
protected:
    void Open()
    {
        m_form = std::make_unique<OptionsForm>(m_desk.Bench);
        m_form->show();
    }

    Text Stored(TextView section, TextView key)
    {
        return m_desk.Settings.Get(section, key, u"none", u"Orvane");
    }

    /// Whether the browser can be typed and picked.
    bool IsBrowserOpen()
    {
        return !Find<QLineEdit>(*m_form, "txtBrowser")->isReadOnly() &&
               Find<QPushButton>(*m_form, "cmdBrowse1")->isEnabled();
    }

    FakeDesk m_desk;
    std::unique_ptr<OptionsForm> m_form;
};

TEST_F(OptionsFormTest, OverrideUnlocksAnEmptyFieldThatMustBeFilled)
{
    Open();
    EXPECT_FALSE(IsBrowserOpen());
    Click(*m_form, "chkOverride");
    EXPECT_TRUE(IsBrowserOpen());
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_desk.Dialogs.Said,
              Texts{u"If you are overriding the default broswer, you must enter the path "
                    u"and filename of a different browser in the Browser input box."});
    EXPECT_TRUE(m_desk.Settings.Writes.empty());

    Click(*m_form, "chkOverride");
    EXPECT_FALSE(IsBrowserOpen());
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"default browser");
    Click(*m_form, "chkOverride");
    for (const std::optional<Text>& picked : {std::optional<Text>(u"/opt/c"), {}}) {
        m_desk.Dialogs.AnswerOpenFile(picked);
        Click(*m_form, "cmdBrowse1");
        EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), picked.value_or(u"")) << "Cancel empties it";
    }
    Type(*m_form, "txtBrowser", u"/opt/b");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(Stored(u"Apps", u"Browser"), u"/opt/b");
    EXPECT_EQ(Stored(u"Apps", u"Override"), u"1");
    EXPECT_FALSE(m_form->isVisible());
}

TEST_F(OptionsFormTest, OkKeepsWhatWasSetAndCancelForgetsIt)
{
    m_desk.Settings.Stored[{u"Orvane", u"Misc", u"HTMLEditor"}] = u"Dream Weaver";
    for (const char* end : {"cmdCancel", "cmdOK"}) {
        Open();
        ExpectAccessible(*m_form);
        auto* editors = Find<QComboBox>(*m_form, "cboWebPageEditor");
        Press(*editors, Qt::Key_Down);
        EXPECT_EQ(editors->currentText(), "Microsoft Publisher 98");
        editors->setEditText("My Editor");
        Click(*m_form, "chkUnlock");
        m_desk.Dialogs.AnswerFolder(u"/pictures");
        Click(*m_form, "cmdBrowse3");
        for (const Text& write : m_desk.Settings.Writes)
            EXPECT_TRUE(write.starts_with(u"Places/")) << ToUtf8(write);
        Click(*m_form, end);
    }
    EXPECT_EQ(m_desk.Core.DefaultPath, u"/pictures");
    Open();
    EXPECT_EQ(WordsOf(*m_form, "txtDefaultPath"), u"/pictures");
    EXPECT_EQ(WordsOf(*m_form, "cboWebPageEditor"), u"My Editor");
    EXPECT_TRUE(Find<QCheckBox>(*m_form, "chkUnlock")->isChecked());
    EXPECT_FALSE(Find<QCheckBox>(*m_form, "chkAlwaysUse")->isEnabled());
}

TEST(PreferencesTest, OpenWithTheDefaultBrowserUnlessAnotherToolSetTheFlag)
{
    FakeDesk desk;
    desk.Settings.Put(u"Apps", u"Browser", u"/opt/b", u"Orvane");
    desk.Settings.Put(u"Apps", u"Override", u"1", u"Orvane");
    EXPECT_EQ(LoadPreferences(desk.Settings).txtBrowser, u"default browser");
    desk.Settings.Put(u"Misc", u"Override", u"1", u"Orvane");
    EXPECT_EQ(LoadPreferences(desk.Settings).txtBrowser, u"/opt/b");
}

TEST(PreferencesTest, AreStoredInOrderUnderTheirKeys)
{
    FakeDesk desk;
    SavePreferences({.chkOverride = true, .txtDefaultPath = u"/p", .cboWebPageEditor = u"Mine"},
                    desk.Core, desk.Settings);
    EXPECT_EQ(desk.Settings.Writes,
              (Texts{u"Apps/Browser", u"Apps/Override", u"Misc/UnlockInputBoxes",
                     u"Misc/HTMLEditor", u"Misc/DefaultPath"}));
    Texts values;
    for (const auto& [key, value] : desk.Settings.Stored)
        values.push_back(value);
    EXPECT_EQ(values, (Texts{u"default browser", u"1", u"/p", u"Mine", u"0"}));
    EXPECT_EQ(desk.Core.DefaultPath, u"/p");

    SavePreferences({.txtDefaultPath = u""}, desk.Core, desk.Settings);
    SavePreferences({.txtDefaultPath = u"/p"}, desk.Core, desk.Settings);
    EXPECT_EQ(LoadPreferences(desk.Settings).txtDefaultPath, u"/p");
    EXPECT_EQ(std::ranges::count(desk.Settings.Writes, u"Misc/DefaultPath"), 1);
}

TEST(AboutFormTest, TellsTheVersionAndOpensTheMakersSite)
{
    FakeDesk desk;
    AboutForm about(desk.Bench);
    about.show();
    EXPECT_EQ(WordsOf(about, "lblVersionInfo"), u"Version 1.2.3 for Windows 95/98/NT/ME/2000/XP");
    QTest::mouseClick(Find<QLabel>(about, "lblLink"), Qt::LeftButton);
    EXPECT_EQ(desk.Shell.Opened, Texts{u"http://www.varlo.example"});
    Click(about, "cmdOK");
    EXPECT_FALSE(about.isVisible());
}

} // namespace
} // namespace orvane::testing
