#include "program/options_form.h"

#include "program/about_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace orvane {
namespace {

using namespace orvane::testing;

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

    void Store(TextView section, TextView key, TextView value)
    {
        m_desk.Settings.Put(section, key, value, u"Orvane");
        m_desk.Settings.Writes.clear();
    }

    FakeDesk m_desk;
    std::unique_ptr<OptionsForm> m_form;
};

TEST_F(OptionsFormTest, OpensWithTheDefaultBrowserLockedWhateverWasStored)
{
    Store(u"Apps", u"Override", u"1");
    Store(u"Apps", u"Browser", u"/opt/b");
    Open();
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"default browser");
    EXPECT_TRUE(Find<QLineEdit>(*m_form, "txtBrowser")->isReadOnly());
    EXPECT_FALSE(Find<QPushButton>(*m_form, "cmdBrowse1")->isEnabled());
    EXPECT_FALSE(Find<QCheckBox>(*m_form, "chkOverride")->isChecked());
    EXPECT_FALSE(Find<QCheckBox>(*m_form, "chkAlwaysUse")->isEnabled());
    ExpectAccessible(*m_form);
}

TEST_F(OptionsFormTest, ShowsTheStoredBrowserWhenAnotherToolSetTheFlag)
{
    Store(u"Misc", u"Override", u"1");
    Store(u"Apps", u"Browser", u"/opt/b");
    Open();
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"/opt/b");
    EXPECT_FALSE(Find<QLineEdit>(*m_form, "txtBrowser")->isReadOnly());
}

TEST_F(OptionsFormTest, OverrideUnlocksAnEmptyFieldThatMustBeFilled)
{
    Open();
    Click(*m_form, "chkOverride");
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(
        m_desk.Dialogs.Said,
        std::vector<Text>{u"If you are overriding the default broswer, you must enter the path "
                          u"and filename of a different browser in the Browser input box."});
    EXPECT_TRUE(m_desk.Settings.Writes.empty());
    Type(*m_form, "txtBrowser", u"/opt/b");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(Stored(u"Apps", u"Browser"), u"/opt/b");
    EXPECT_EQ(Stored(u"Apps", u"Override"), u"1");
    EXPECT_FALSE(m_form->isVisible());
}

TEST_F(OptionsFormTest, OverrideOffLocksTheFieldAgain)
{
    Open();
    Click(*m_form, "chkOverride");
    Click(*m_form, "chkOverride");
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"default browser");
    EXPECT_FALSE(Find<QPushButton>(*m_form, "cmdBrowse1")->isEnabled());
}

TEST_F(OptionsFormTest, CancelledBrowseEmptiesTheField)
{
    Open();
    Click(*m_form, "chkOverride");
    m_desk.Dialogs.AnswerOpenFile(u"/opt/b");
    Click(*m_form, "cmdBrowse1");
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"/opt/b");
    m_desk.Dialogs.AnswerOpenFile(std::nullopt);
    Click(*m_form, "cmdBrowse1");
    EXPECT_EQ(WordsOf(*m_form, "txtBrowser"), u"");
}

TEST_F(OptionsFormTest, OkStoresEverythingInOrder)
{
    Store(u"Misc", u"HTMLEditor", u"My Editor");
    Open();
    EXPECT_EQ(WordsOf(*m_form, "cboWebPageEditor"), u"My Editor");
    EXPECT_EQ(Find<QComboBox>(*m_form, "cboWebPageEditor")->itemText(3),
              QStringLiteral("Dream Weaver"));
    Click(*m_form, "chkUnlock");
    m_desk.Dialogs.AnswerFolder(u"/pictures");
    Click(*m_form, "cmdBrowse3");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_desk.Settings.Writes,
              (std::vector<Text>{u"Apps/Browser", u"Apps/Override", u"Misc/UnlockInputBoxes",
                                 u"Misc/HTMLEditor", u"Misc/DefaultPath"}));
    EXPECT_EQ(Stored(u"Apps", u"Browser"), u"default browser");
    EXPECT_EQ(Stored(u"Apps", u"Override"), u"0");
    EXPECT_EQ(Stored(u"Misc", u"UnlockInputBoxes"), u"1");
    EXPECT_EQ(Stored(u"Misc", u"HTMLEditor"), u"My Editor");
    EXPECT_EQ(m_desk.Core.DefaultPath, u"/pictures");
}

TEST_F(OptionsFormTest, EmptyDefaultFolderLeavesTheStoredOne)
{
    Store(u"Misc", u"DefaultPath", u"/pictures");
    Open();
    Find<QLineEdit>(*m_form, "txtDefaultPath")->clear();
    Click(*m_form, "cmdOK");
    EXPECT_EQ(Stored(u"Misc", u"DefaultPath"), u"/pictures");
}

TEST_F(OptionsFormTest, CancelStoresNothing)
{
    Open();
    Click(*m_form, "chkUnlock");
    Click(*m_form, "cmdCancel");
    EXPECT_TRUE(m_desk.Settings.Writes.empty());
}

TEST(AboutFormTest, TellsTheVersionAndOpensTheMakersSite)
{
    FakeDesk desk;
    AboutForm about(desk.Bench);
    about.show();
    EXPECT_EQ(WordsOf(about, "lblVersionInfo"), u"Version 1.2.3 for Windows 95/98/NT/ME/2000/XP");
    emit Find<QLabel>(about, "lblLink")->linkActivated({});
    EXPECT_EQ(desk.Shell.Opened, std::vector<Text>{u"http://www.varlo.example"});
    Click(about, "cmdOK");
    EXPECT_FALSE(about.isVisible());
}

} // namespace
} // namespace orvane
