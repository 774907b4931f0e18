#include "delivery/required_files.h"

#include "delivery/files_to_upload.h"
#include "insertion/new_page.h"
#include "insertion/page_script.h"
#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

constexpr TextView allCopied =
    u"All files have been copied to the /site/ folder.  Now you can easily upload these files to "
    u"the Internet.";
constexpr TextView notAllCopied =
    u"Orvane couldn't copy all the necessary files to the specified folder.\r\n"
    u"Use the file list on the left to find the missing files and click the 'Copy' button to copy "
    u"them.";
constexpr TextView noPreview =
    u"Orvane can't preview the special effect because it could not find the necessary files.\r\n"
    u"Use the file list below to find the missing files and click the 'Copy' button to copy them "
    u"to the Orvane folder.";
constexpr TextView overwritePage =
    u"ovtemp.html already exists in this folder.  This file contains HTML code that controls a "
    u"Orvane special effect that you previously created.\r\n\r\n"
    u"Do you wish to overwrite this with the new ovtemp.html file that controls the current "
    u"special effect?";

Text OverwriteQuestion(TextView name)
{
    return Join({name, u" already exists in this folder.  Do you wish to overwrite?"});
}

/// An effect with two pictures of the author and two class files, on a disk that holds them.
class RequiredFilesTest : public ::testing::Test
{
protected:
    RequiredFilesTest()
    {
        disk.Contents = {{u"/pics/a.gif", "a"},
                         {u"/pics/b.gif", "b"},
                         {u"/program/X.class", "X"},
                         {u"/program/Y.class", "Y"}};
        Require(0, u"a.gif", u"/pics/a.gif");
        Require(50, u"b.gif", u"/pics/b.gif");
        // The empty cell between the two is passed over.
        payload.Effect.SupportFiles = {u"X.class", u"", u"Y.class"};
    }

    void Require(std::size_t index, TextView name, TextView source)
    {
        payload.Effect.Required.RequiredFileNames.at(index) = name;
        payload.Effect.Required.RequiredFileSources.at(index) = source;
    }

    MissingFiles Copy(TextView folder = u"/site/")
    {
        return ValueIn(CopyRequiredFiles(Job(), folder));
    }

    CopyJob Job() { return {payload, u"/program", disk, dialogs, report}; }

    FakeDialogs dialogs;
    FakeFileStore disk;
    FinishedPayload payload;
    DeliveryReport report;
};

TEST_F(RequiredFilesTest, ANameWithoutKnownSourceIsMissingAndNeverAskedFor)
{
    Require(0, u"a.gif", u"");
    disk.Contents[u"/site/a.gif"] = "old";
    EXPECT_EQ(Copy(), MissingFiles{u"a.gif"});
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "old");
    EXPECT_EQ(disk.Contents[u"/site/Y.class"], "Y");
    EXPECT_EQ(dialogs.Said, Texts{Text(notAllCopied)});
    EXPECT_EQ(dialogs.LastTone, Tone::Exclamation);
    dialogs.TakeSaid();
    CopyJob elsewhere = Job();
    elsewhere.HasFileList = false;
    EXPECT_EQ(ValueIn(CopyRequiredFiles(elsewhere, u"/other/")), MissingFiles{u"a.gif"});
    EXPECT_TRUE(dialogs.Said.at(0).ends_with(
        u"\r\nPlease copy these files to the /other/ folder yourself: a.gif"));
}

TEST_F(RequiredFilesTest, AsksBeforeEachPictureThatItWouldOverwriteButNotForClassFiles)
{
    for (TextView name : {u"/site/a.gif", u"/site/b.gif", u"/site/X.class"})
        disk.Contents[Text(name)] = "old";
    dialogs.ExpectAsk(OverwriteQuestion(u"a.gif"), false);
    dialogs.ExpectAsk(OverwriteQuestion(u"b.gif"), true);
    EXPECT_EQ(Copy(), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "old");
    EXPECT_EQ(disk.Contents[u"/site/b.gif"], "b");
    EXPECT_EQ(disk.Contents[u"/site/X.class"], "X");
    EXPECT_EQ(report.Folder(), u"/site/");
    EXPECT_EQ(dialogs.Said, Texts{Text(allCopied)});
    EXPECT_EQ(dialogs.LastTone, Tone::Plain);
}

TEST_F(RequiredFilesTest, AsksNothingForASourceThatShouldLieInPlaceWhateverItsCase)
{
    Require(0, u"a.gif", u"/Site/A.gif");
    disk.Contents[u"/site/a.gif"] = "here";
    EXPECT_EQ(Copy(), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "here");
    disk.Folders = {u"/site", u"/pics", u"/program"};
    for (const TextView name : {u"/site/a.gif", u"/site/b.gif"})
        disk.Contents.erase(Text(name));
    Require(0, u"a.gif", u"/site/a.gif");
    EXPECT_EQ(Copy(), MissingFiles{u"a.gif"});
}

TEST_F(RequiredFilesTest, LeavesTheClassFilesOfTheProgramsFolderAlone)
{
    EXPECT_EQ(Copy(u"/program/"), MissingFiles());
    EXPECT_EQ(disk.Writes, (Texts{u"/program/a.gif", u"/program/b.gif"}));
    disk.Writes.clear();
    Require(1, u"a.gif", u"/pics/a.gif"); // the effect shows it twice, and it is copied once
    EXPECT_EQ(Copy(), MissingFiles());
    EXPECT_EQ(disk.Writes,
              (Texts{u"/site/a.gif", u"/site/b.gif", u"/site/X.class", u"/site/Y.class"}));
    for (const TextView folder : {u"/Program/", u""}) {
        disk.Writes.clear();
        Copy(folder);
        EXPECT_EQ(disk.Writes.size(), 4u) << "folders are compared to the letter";
    }
}

TEST_F(RequiredFilesTest, AFaultOfOneFileMakesItMissingAndAnyOtherEndsTheCopying)
{
    for (const Fault fault :
         {Fault::FileNotFound, Fault::PermissionDenied, Fault::PathFileAccess}) {
        disk.FailAt(disk.Calls() + 4, fault);
        EXPECT_EQ(Copy(), MissingFiles{u"b.gif"});
        EXPECT_TRUE(disk.FileExists(u"/site/Y.class"));
        for (TextView name : {u"/site/a.gif", u"/site/X.class", u"/site/Y.class"})
            disk.Contents.erase(Text(name));
    }
    dialogs.TakeSaid();
    disk.FailAt(disk.Calls() + 4, Fault::DiskFull);
    const Outcome<MissingFiles> outcome = CopyRequiredFiles(Job(), u"/site/");
    ASSERT_NE(FaultIn(outcome), nullptr);
    EXPECT_EQ(*FaultIn(outcome), Fault::DiskFull);
    EXPECT_FALSE(disk.FileExists(u"/site/X.class"));
    EXPECT_EQ(dialogs.Said, Texts());
}

TEST_F(RequiredFilesTest, AnAuthorWhoEndsTheCopyingKeepsWhatIsThereAndIsToldTheRest)
{
    disk.Contents[u"/site/b.gif"] = "old";
    disk.Contents[u"/site/X.class"] = "old";
    Require(10, u"c.gif", u"/pics/b.gif");
    dialogs.WorkGoesOn = 1;
    EXPECT_EQ(CopyRequiredFiles(Job(), u"/site/"), Outcome<MissingFiles>(Fault::Cancelled));
    EXPECT_EQ(dialogs.TakeSaid(), Texts{u"You ended the copying.  These files were not copied to "
                                        u"the /site/ folder: c.gif, X.class, Y.class"});
    EXPECT_EQ(disk.Contents[u"/site/b.gif"], "old") << "nobody asks about it any more";
    EXPECT_EQ(disk.Contents[u"/site/X.class"], "old");

    EXPECT_EQ(CopyRequiredFilesForPreview(Job()), MissingFiles()) << "seen without its pictures";
    EXPECT_EQ(dialogs.Said, Texts());
}

TEST_F(RequiredFilesTest, BringsAWantedPageScriptAndReplacesEarlierVersionsOfItAlone)
{
    const std::string own = PageScriptFile("1.2.0", "new");
    const std::string earlier = PageScriptFile("1.1.99999999999999999999", "old");
    const std::string changed = earlier + "mine";
    const std::string later = PageScriptFile("1.20000000000000000000.0", "newer") + "theirs";
    struct Case
    {
        const char* Present; ///< null: no such file
        std::optional<bool> Answer;
        std::string Left;
    };
    const Case cases[] = {{nullptr, {}, own},         {earlier.c_str(), {}, own},
                          {later.c_str(), {}, later}, {changed.c_str(), false, changed},
                          {own.c_str(), {}, own},     {"mine", false, "mine"},
                          {"mine", true, own},        {"", false, ""}};
    disk.Contents[u"/program/orvane.js"] = own;
    payload = {.WantsPageScript = true};
    for (const Case& test : cases) {
        SCOPED_TRACE(test.Present ? test.Present : "no file");
        disk.Contents.erase(u"/site/orvane.js");
        if (test.Present)
            disk.Contents[u"/site/orvane.js"] = test.Present;
        if (test.Answer)
            dialogs.ExpectAsk(OverwriteQuestion(u"orvane.js"), *test.Answer);
        EXPECT_EQ(Copy(), MissingFiles());
        EXPECT_EQ(disk.Contents[u"/site/orvane.js"], test.Left);
        EXPECT_EQ(dialogs.TakeSaid(), Texts{Text(allCopied)});
    }
    EXPECT_EQ(FilesToUpload(payload), Texts{u"orvane.js"});
    payload.WantsPageScript = false;
    disk.Contents.erase(u"/site/orvane.js");
    Copy();
    EXPECT_FALSE(disk.Contents.contains(u"/site/orvane.js"));
}

TEST_F(RequiredFilesTest, ReplacesABackupPageOnYesAloneAndStillCopies)
{
    disk.Contents[u"/site/ovtemp.html"] = "old";
    disk.Contents[u"/site/a.gif"] = "old";
    dialogs.ExpectAsk(Text(overwritePage), false);
    dialogs.ExpectAsk(OverwriteQuestion(u"a.gif"), true);
    EXPECT_EQ(ValueIn(Publish(Job(), u"/site/")), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/ovtemp.html"], "old");
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "a");
    for (const Text& question :
         {Text(overwritePage), OverwriteQuestion(u"a.gif"), OverwriteQuestion(u"b.gif")})
        dialogs.ExpectAsk(question, true);
    EXPECT_EQ(ValueIn(Publish(Job(), u"/site/")), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/ovtemp.html"], NewPageBytes(payload));
}

TEST_F(RequiredFilesTest, BringsToThePreviewWithoutAWordWhatDoesNotLieThereInAnyCase)
{
    disk.Contents[u"/program/A.GIF"] = "there";
    EXPECT_EQ(CopyRequiredFilesForPreview(Job()), MissingFiles());
    EXPECT_EQ(disk.Writes, Texts{u"/program/b.gif"});
    Require(50, u"b.gif", u"/program/b.gif");
    EXPECT_EQ(CopyRequiredFilesForPreview(Job()), MissingFiles());
    EXPECT_EQ(disk.Writes.size(), 1u);
    EXPECT_EQ(dialogs.Said, Texts());
    EXPECT_EQ(report.Folder(), u"") << "nothing is delivered by that";
}

TEST_F(RequiredFilesTest, TellsWhichFilesThePreviewLacks)
{
    Require(1, u"c.gif", u"");
    Require(2, u"d.gif", u"/gone/d.gif");
    EXPECT_EQ(CopyRequiredFilesForPreview(Job()), (MissingFiles{u"c.gif", u"d.gif"}));
    EXPECT_EQ(disk.Contents[u"/program/b.gif"], "b");
    EXPECT_EQ(dialogs.Said, Texts{Text(noPreview)});
    EXPECT_EQ(dialogs.LastTone, Tone::Exclamation);
}

} // namespace
} // namespace orvane::testing
