#include "effects/text/status_bar_ticker.h"
#include "services/recent_files.h"
#include "tests/support/qt_delivery.h"

namespace orvane::testing {
namespace {

const std::string oldPage = "<html><head>\n</head><body>Hello</body></html>";

/// The delivery wizard on the page where the ticker goes into an existing page; the author may type
/// into its file name.
class AutoInsertFormTest : public DeliveryTest
{
protected:
    AutoInsertFormTest()
    {
        m_payload = Generate(StatusBarTicker{u"Welcome"});
        m_desk.Settings.Put(u"Misc", u"UnlockInputBoxes", u"1", u"Orvane");
        m_desk.Files.Contents[u"/site/index.html"] = oldPage;
    }

    void Insert()
    {
        Open();
        Click(*m_form, "cmdNext");
        GoBy(0);
        ASSERT_EQ(Heading(), u"Step 3: Auto-Insert the special effect in your Web page");
        Type(*m_form, "txtFileName", u"/site/index.html");
        Click(*m_form, "cmdAutoInsert");
    }
};

TEST_F(AutoInsertFormTest, ATypedPageGetsTheEffectAndEndsTheWizardThoughAFileIsMissing)
{
    m_payload.Required.RequiredFileNames[0] = u"a.gif";
    m_payload.Required.RequiredFileSources[0] = u"/gone/a.gif";
    m_payload.Kind = EffectKind::AdvancedAnimator;
    m_desk.Files.Folders = {u"/gone"};
    m_desk.Files.Contents[u"/program/a.gif"] = "shown by the preview";
    Insert();
    const Texts said = m_desk.Dialogs.TakeSaid();
    ASSERT_EQ(said.size(), 1u);
    EXPECT_TRUE(said[0].starts_with(u"Orvane couldn't copy all the necessary files"));
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_EQ(WordsOf(*m_form, "cmdCancel"), u"&Done");
    EXPECT_TRUE(IsShown("cmdPrevious"));
    EXPECT_NE(Bytes(u"/site/index.html").find("onload=\"scrollit_r2l(99)\""), std::string::npos);
    EXPECT_EQ(Bytes(u"/state/first-backups/2024-05-31/site/index.html"), oldPage);
}

TEST_F(AutoInsertFormTest, APageOpenElsewhereMayBeTriedAgain)
{
    m_desk.Files.FailOn(u"/site/index.html", Fault::PermissionDenied);
    Insert();
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    EXPECT_EQ(Bytes(u"/site/index.html"), oldPage);
    EXPECT_EQ(Heading(), u"Step 3: Auto-Insert the special effect in your Web page");
}

TEST_F(AutoInsertFormTest, WhatCannotBeDoneAloneLeadsToTheCodeForTheHead)
{
    m_desk.Files.Contents[u"/site/index.html"] = "<body>no head</body>";
    Insert();
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    EXPECT_EQ(Heading(), u"Step 4: Insert HEAD HTML code into your Web page");
    EXPECT_TRUE(IsShown("txtHEADHTML"));
    EXPECT_EQ(Bytes(u"/site/index.html"), "<body>no head</body>");
    Click(*m_form, "cmdPrevious");
    EXPECT_EQ(Heading(), u"Step 3: Select Method for Inserting your Special Effect");
    EXPECT_TRUE(Find<QRadioButton>(*m_form, "optInsertMode(1)")->isChecked());
}

TEST_F(AutoInsertFormTest, TheLastPageIsOfferedAndTakesTheEffectInOneStep)
{
    PutRecentFile(m_desk.Settings, recentPages, u"/site/index.html");
    KnowEditor(u"");
    Open();
    EXPECT_EQ(WordsOf(*m_form, "cmdPutInto"), u"P&ut it into index.html");
    Click(*m_form, "cmdNext");
    GoBy(0);
    EXPECT_EQ(Find<QLineEdit>(*m_form, "txtFileName")->text(), "/site/index.html");
    Click(*m_form, "cmdPrevious");
    Click(*m_form, "cmdPrevious");
    Click(*m_form, "cmdPutInto");
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_NE(Bytes(u"/site/index.html").find("onload=\"scrollit_r2l(99)\""), std::string::npos);
    Click(*m_form, "cmdPrevious");
    EXPECT_EQ(Heading(), u"Step 3: Auto-Insert the special effect in your Web page");
    m_desk.Dialogs.TakeSaid();

    m_desk.Files.Contents[u"/site/index.html"] = "<body>no head</body>";
    Open();
    Click(*m_form, "cmdPutInto");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_EQ(Heading(), u"Step 4: Insert HEAD HTML code into your Web page");
}

} // namespace
} // namespace orvane::testing
