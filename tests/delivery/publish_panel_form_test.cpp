#include "delivery/publish_panel.h"

#include "services/recent_files.h"
#include "tests/support/qt_delivery.h"
#include "tests/support/qt_mouse.h"

#include <QListWidget>

namespace orvane::testing {
namespace {

/// The delivery wizard of an animation with two pictures, on a disk where both were found once.
class PublishPanelTest : public DeliveryTest
{
protected:
    PublishPanelTest()
    {
        m_desk.Files.Folders = {u"/", u"/pics", u"/program", u"/site", u"/web"};
        m_desk.Files.Contents = {{u"/pics/a.gif", "a"},
                                 {u"/pics/b.gif", "b"},
                                 {u"/pics/c.gif", "c"},
                                 {u"/program/Animate1.class", "class"}};
        m_payload.Kind = EffectKind::AdvancedAnimator;
        m_payload.BODYHTML = u"<B>moves</B>";
        m_payload.Required.RequiredFileNames = {u"a.gif", u"b.gif"};
        m_payload.Required.RequiredFileSources = {u"/pics/a.gif", u"/pics/b.gif"};
        m_payload.SupportFiles = {u"Animate1.class"};
        m_windows.MakeFolder = [this](TextView folder) {
            m_askedFor.emplace_back(folder);
            return m_newFolder;
        };
    }

    void OpenPublishPage()
    {
        Open();
        Click(*m_form, "cmdNext");
        GoBy(1);
        Click(*m_form, "cmdNext");
        ASSERT_EQ(Heading(), u"Step 4: Publish required files to local hard drive");
        ASSERT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"program"}));
    }

    /// The same, with b.gif no longer where it was and the author sent to look for it.
    void OpenWithoutB()
    {
        OpenPublishPage();
        m_desk.Files.Contents.erase(u"/pics/b.gif");
        GoTo(u"site");
        PressEnter();
        ASSERT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
        m_desk.Files.Contents[u"/pics/b.gif"] = "found";
        DoubleClickName("dirCopyFrom", u"pics");
    }

    /// Of the target's folder boxes.
    void GoTo(TextView folder)
    {
        DoubleClickName("dirCopyTo", u"/");
        DoubleClickName("dirCopyTo", folder);
    }

    void PressEnter() { PressWhereItStands(Qt::Key_Return); }

    void DoubleClickName(const char* box, TextView name)
    {
        DoubleClickRow(*m_form, box, RowWith(*m_form, box, name));
    }

    void ClickName(const char* box, TextView name)
    {
        ClickRow(*m_form, box, RowWith(*m_form, box, name));
    }

    /// Of all controls that come and go, exactly these are shown.
    void ExpectShown(const std::set<std::string>& shown)
    {
        for (const char* name :
             {"driveCopyFrom", "dirCopyFrom", "fileCopyFrom", "driveCopyTo", "dirCopyTo",
              "fileCopyTo", "cmdNewFolder", "lstMissingFiles", "cmdCopyFiles", "Label4",
              "cmdManualCopy", "cmdDoneCopying", "picCopyThenPreview", "cmdManualCopyForPreview",
              "cmdPreviewAfterCopying", "cmdPrevious", "cmdNext"})
            EXPECT_EQ(IsShown(name), shown.contains(name)) << name;
    }

    Texts m_askedFor;
    std::optional<Text> m_newFolder;
};

TEST_F(PublishPanelTest, EnterPublishesToTheChosenFolderThenGoesOn)
{
    OpenPublishPage();
    ExpectShown({"driveCopyTo", "dirCopyTo", "fileCopyTo", "cmdNewFolder", "cmdCopyFiles", "Label4",
                 "cmdPrevious", "cmdNext"});
    GoTo(u"site");
    m_desk.Files.FailOn(u"/site/ovtemp.html", Fault::DiskFull);
    EXPECT_EQ(Focused(), u"cmdCopyFiles");
    PressEnter();
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{u"Disk full"});
    EXPECT_EQ(Focused(), u"cmdCopyFiles");

    GoTo(u"web");
    PressEnter();
    EXPECT_EQ(RowsOf(*m_form, "fileCopyTo"),
              (Texts{u"a.gif", u"Animate1.class", u"b.gif", u"ovtemp.html"}));
    EXPECT_NE(Bytes(u"/web/ovtemp.html").find("<B>moves</B>"), std::string::npos);
    PressEnter();
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_EQ(RowsOf(*m_form, "lstFilesToUpload"),
              (Texts{u"Animate1.class", u"CoolTool3.class", u"a.gif", u"b.gif"}));
    EXPECT_EQ(RowsOf(*m_form, "lstPageFiles"),
              (Texts{u"/web/", u"a.gif: there", u"b.gif: there", u"Animate1.class: there"}));
    EXPECT_FALSE(IsShown("cmdOpenPage"));
    Click(*m_form, "cmdOpenFolder");
    EXPECT_EQ(m_desk.Shell.Opened, Texts{u"/web/"});
    Click(*m_form, "cmdPrevious");
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdNext")->isDefault());
    GoTo(u"site");
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdCopyFiles")->isDefault()) << "another folder";
}

TEST_F(PublishPanelTest, MissingFilesAreCopiedByHandAndTheReportComesLast)
{
    OpenWithoutB();
    ExpectShown({"driveCopyFrom", "dirCopyFrom", "fileCopyFrom", "driveCopyTo", "dirCopyTo",
                 "fileCopyTo", "cmdNewFolder", "lstMissingFiles", "cmdManualCopy",
                 "cmdDoneCopying"});
    ExpectAccessible(*m_form);
    EXPECT_EQ(RowsOf(*m_form, "lstMissingFiles"), Texts{u"b.gif"});
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdManualCopy")->isDefault());

    Find<QListWidget>(*m_form, "fileCopyFrom")->selectAll();
    m_desk.Dialogs.ExpectAsk(u"a.gif already exists in this folder.  Do you wish to overwrite?",
                             false);
    Click(*m_form, "cmdManualCopy");
    EXPECT_EQ(Bytes(u"/site/b.gif"), "found");
    EXPECT_TRUE(RowsOf(*m_form, "lstMissingFiles").empty());
    EXPECT_EQ(RowsOf(*m_form, "fileCopyTo"),
              (Texts{u"a.gif", u"Animate1.class", u"b.gif", u"c.gif", u"ovtemp.html"}));
    EXPECT_EQ(Focused(), u"cmdDoneCopying");

    Click(*m_form, "cmdDoneCopying");
    EXPECT_EQ(Heading(), u"Finished!");
    EXPECT_TRUE(IsShown("lblReport")) << "there is no code for the HEAD";
    EXPECT_EQ(DoneCopying(true).Panel, 4);
    EXPECT_EQ(WordsOf(*m_form, "cmdCancel"), u"&Done");
    EXPECT_EQ(Focused(), u"cmdCancel");
    EXPECT_TRUE(IsShown("cmdNext"));
    EXPECT_FALSE(Find<QPushButton>(*m_form, "cmdNext")->isEnabled());
    Click(*m_form, "cmdPrevious");
    EXPECT_EQ(Heading(), u"Step 3: Insert BODY HTML code into your Web page");
    EXPECT_EQ(WordsOf(*m_form, "cmdCancel"), u"&Cancel");
    Click(*m_form, "cmdNext");
    EXPECT_TRUE(IsShown("cmdCopyFiles"));
    EXPECT_TRUE(RowsOf(*m_form, "lstMissingFiles").empty());
}

TEST_F(PublishPanelTest, PreviewComesOnceItsMissingFilesWereCopied)
{
    m_payload.Required.RequiredFileSources[1] = u"";
    Open();
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_EQ(Heading(), u"Missing Required Files for Preview");
    EXPECT_EQ(
        WordsOf(*m_form, "lblSubHeading"),
        u"The following required files could not be found.  Using the file list below, find the "
        u"necessary files and click the 'Copy>>' button to copy them to the correct location.");
    ExpectShown({"driveCopyFrom", "dirCopyFrom", "fileCopyFrom", "lstMissingFiles",
                 "picCopyThenPreview", "cmdManualCopyForPreview", "cmdPreviewAfterCopying"});
    ExpectAccessible(*m_form);
    EXPECT_TRUE(m_desk.Pane.Navigated.empty());
    EXPECT_EQ(RowsOf(*m_form, "lstMissingFiles"), Texts{u"b.gif"});

    DoubleClickName("dirCopyFrom", u"pics");
    ClickName("fileCopyFrom", u"b.gif");
    Click(*m_form, "cmdManualCopyForPreview");
    EXPECT_EQ(Bytes(u"/program/b.gif"), "b");
    EXPECT_TRUE(RowsOf(*m_form, "lstMissingFiles").empty());

    PressEnter();
    EXPECT_EQ(Heading(), u"Step 1: Preview your special effect");
    EXPECT_EQ(m_desk.Pane.Navigated, Texts{u"/program/ov-prvw.htm"});
    PressEnter();
    EXPECT_EQ(Heading(), u"Step 2: Select Method for Inserting your Special Effect");
    EXPECT_TRUE(IsShown("cmdPrevious"));
}

TEST_F(PublishPanelTest, StartsBesideThePageAndPublishesToTheFolderThatOneClickMarks)
{
    PutRecentFile(m_desk.Settings, u"Pages", u"/site/index.html");
    m_desk.Files.Contents[u"/site/index.html"] = "<html>";
    Open();
    Click(*m_form, "cmdNext");
    GoBy(1);
    Click(*m_form, "cmdNext");
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"site"}));
    ExpectAccessible(*m_form);
    DoubleClickName("dirCopyTo", u"/");
    ClickName("dirCopyTo", u"web");
    Click(*m_form, "cmdCopyFiles");
    EXPECT_EQ(Bytes(u"/web/a.gif"), "a");
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"web"}));
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdNext")->isDefault());
    DoubleClickName("dirCopyTo", u"/");
    ClickName("dirCopyTo", u"pics");
    EXPECT_TRUE(Find<QPushButton>(*m_form, "cmdCopyFiles")->isDefault());
    Click(*m_form, "cmdPrevious");
    Click(*m_form, "cmdNext");
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo").front(), u"/") << "where the author left it";
    EXPECT_NE(RowsOf(*m_form, "dirCopyTo").at(1), u"site") << "not beside the page again";
}

TEST_F(PublishPanelTest, GoesToTheFolderThatTheAuthorMade)
{
    OpenPublishPage();
    Click(*m_form, "cmdNewFolder");
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"program"}));
    m_desk.Files.Folders.insert(u"/program/new");
    m_newFolder = u"/program/new";
    Click(*m_form, "cmdNewFolder");
    EXPECT_EQ(m_askedFor, (Texts{u"/program", u"/program"}));
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"program", u"new"}));
    Click(*m_form, "cmdCopyFiles");
    EXPECT_EQ(Bytes(u"/program/new/a.gif"), "a");

    Click(*m_form, "cmdNext");
    Click(*m_form, "cmdPrevious");
    DoubleClickName("dirCopyTo", u"/");
    Click(*m_form, "cmdLastFolder");
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"program", u"new"}));
}

TEST_F(PublishPanelTest, ANewPageWithFilesMissingLeadsToThePublishPageOfItsFolder)
{
    Open();
    Click(*m_form, "cmdNext");
    GoBy(2);
    m_desk.Files.Contents.erase(u"/pics/b.gif");
    m_desk.Dialogs.AnswerSaveFile(u"/site/index.html");
    Click(*m_form, "cmdSaveWebPage");
    EXPECT_EQ(Heading(), u"Step 4: Publish required files to local hard drive");
    EXPECT_EQ(RowsOf(*m_form, "dirCopyTo"), (Texts{u"/", u"site"}));
    EXPECT_TRUE(IsShown("cmdCopyFiles"));
    EXPECT_EQ(Focused(), u"cmdCopyFiles");
}

} // namespace
} // namespace orvane::testing
