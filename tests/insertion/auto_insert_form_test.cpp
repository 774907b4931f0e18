#include "delivery/preview_form.h"

#include "effects/text/status_bar_ticker.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QLineEdit>
#include <QRadioButton>

namespace orvane {
namespace {

using namespace orvane::testing;

using Names = std::vector<Text>;

const std::string oldPage = "<html><head>\n</head><body>Hello</body></html>";

/// The delivery wizard on the page where the ticker goes into an existing page; the author may type
/// into its file name.
class AutoInsertFormTest : public ::testing::Test
{
protected:
    AutoInsertFormTest()
    {
        m_desk.Settings.Put(u"Misc", u"HTMLEditor", u"Other", u"Orvane");
        m_desk.Settings.Put(u"Misc", u"UnlockInputBoxes", u"1", u"Orvane");
        m_desk.Files.Contents[u"/site/index.html"] = oldPage;
    }

    void Open()
    {
        m_form = std::make_unique<PreviewForm>(m_desk.Bench, m_payload, nullptr, PreviewWindows());
        m_form->show();
        LetRun();
        Click(*m_form, "cmdNext");
        Click(*m_form, "cmdNext");
        ASSERT_EQ(Heading(), u"Step 3: Auto-Insert the special effect in your Web page");
    }

    void Insert(TextView name)
    {
        Type(*m_form, "txtFileName", name);
        Click(*m_form, "cmdAutoInsert");
    }

    Text Heading() { return WordsOf(*m_form, "lblHeading"); }
    std::string Bytes(const Text& path) { return m_desk.Files.Contents[path]; }

    FakeDesk m_desk;
    EffectPayload m_payload = Generate(StatusBarTicker{u"Welcome"});
    std::unique_ptr<PreviewForm> m_form;
};

TEST_F(AutoInsertFormTest, ATypedPageGetsTheEffectAndEndsTheWizard)
{
    Open();
    Insert(u"/site/index.html");
    EXPECT_EQ(
        m_desk.Dialogs.Said,
        Names{u"All files have been copied to the /site/ folder.  Now you can easily upload these "
              u"files to the Internet."});
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_EQ(WordsOf(*m_form, "cmdCancel"), u"&Done");
    EXPECT_EQ(Bytes(u"/site/Backup of index.html"), oldPage);
    EXPECT_EQ(Bytes(u"/state/first-backups/2024-05-31/site/index.html"), oldPage);
    const std::string page = Bytes(u"/site/index.html");
    EXPECT_TRUE(page.starts_with("<html><head>\n\r\n"
                                 "<!-- ***** Begin:Varlo Status Bar Scroller special effect *****"
                                 " -->\r\n<SCRIPT LANGUAGE=\"JavaScript\">\r\n"))
        << page;
    EXPECT_TRUE(page.ends_with("<!-- ***** End:Varlo Status Bar Scroller special effect ***** -->"
                               "\r\n\n</head><body onload=\"scrollit_r2l(99)\" >"
                               "Hello</body></html>"))
        << page;
}

TEST_F(AutoInsertFormTest, APageOpenElsewhereIsNotWrittenAndMayBeTriedAgain)
{
    Open();
    m_desk.Files.FailOn(u"/site/index.html", Fault::PermissionDenied);
    Insert(u"/site/index.html");
    EXPECT_EQ(
        m_desk.Dialogs.TakeSaid(),
        Names{u"Your Web page file is open in another application.  Please close the open Web page "
              u"file or exit the application you are using to edit it.\r\n\r\n"
              u"Then try to AutoInsert the special effect again."});
    EXPECT_EQ(Bytes(u"/site/index.html"), oldPage);
    EXPECT_EQ(Heading(), u"Step 3: Auto-Insert the special effect in your Web page");

    m_desk.Files.Contents[u"/site/other.html"] = oldPage;
    Find<QLineEdit>(*m_form, "txtFileName")->clear();
    Insert(u"/site/other.html");
    EXPECT_EQ(Heading(), u"Finished!");
}

TEST_F(AutoInsertFormTest, WhatCannotBeDoneAloneLeadsToTheCodeForTheHead)
{
    m_desk.Files.Contents[u"/site/index.html"] = "<body>no head</body>";
    Open();
    Insert(u"/site/index.html");
    EXPECT_EQ(m_desk.Dialogs.Said,
              Names{u"We suggest you manually insert the special effect code into your Web page.  "
                    u"Follow the instructions below."});
    EXPECT_EQ(Heading(), u"Step 4: Insert HEAD HTML code into your Web page");
    EXPECT_TRUE(Find<QWidget>(*m_form, "txtHEADHTML")->isVisible());
    EXPECT_EQ(Bytes(u"/site/index.html"), "<body>no head</body>");
    Click(*m_form, "cmdPrevious");
    EXPECT_EQ(Heading(), u"Step 3: Select Method for Inserting your Special Effect");
    EXPECT_TRUE(Find<QRadioButton>(*m_form, "optInsertMode(1)")->isChecked());
}

TEST_F(AutoInsertFormTest, MissingFilesAreToldAndTheLastPageComesAllTheSame)
{
    m_payload.Kind = EffectKind::AdvancedAnimator;
    m_payload.Required.Names[0] = u"a.gif";
    m_payload.Required.Sources[0] = u"/gone/a.gif";
    m_desk.Files.Folders = {u"/gone"};
    m_desk.Files.Contents[u"/program/a.gif"] = "shown by the preview";
    Open();
    Insert(u"/site/index.html");
    EXPECT_EQ(m_desk.Dialogs.Said,
              Names{u"Orvane couldn't copy all the necessary files to the specified folder.\r\n"
                    u"Use the file list on the left to find the missing files and click the 'Copy' "
                    u"button to copy them."});
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_TRUE(Find<QWidget>(*m_form, "cmdPrevious")->isVisible());
}

} // namespace
} // namespace orvane
