#include "delivery/required_files.h"

#include "insertion/new_page.h"
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

using Names = std::vector<Text>;

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
        payload.Effect.Required.Names.at(index) = name;
        payload.Effect.Required.Sources.at(index) = source;
    }

    MissingFiles Copy(TextView folder = u"/site/")
    {
        return ValueIn(CopyRequiredFiles(Desk(), folder));
    }

    CopyDesk Desk() { return {payload, u"/program", disk, dialogs}; }

    FakeDialogs dialogs;
    FakeFileStore disk;
    FinishedPayload payload;
};

TEST_F(RequiredFilesTest, CopiesPicturesThenClassFilesAndSaysSo)
{
    EXPECT_EQ(Copy(), MissingFiles());
    EXPECT_EQ(disk.Writes,
              (Names{u"/site/a.gif", u"/site/b.gif", u"/site/X.class", u"/site/Y.class"}));
    EXPECT_EQ(disk.Contents[u"/site/b.gif"], "b");
    EXPECT_EQ(dialogs.Said, Names{Text(allCopied)});
    EXPECT_EQ(dialogs.LastTone, Tone::Plain);
}

TEST_F(RequiredFilesTest, SaysThatAllIsCopiedForAnEffectWithoutFiles)
{
    payload = {};
    EXPECT_EQ(Copy(), MissingFiles());
    EXPECT_EQ(dialogs.Said, Names{Text(allCopied)});
    EXPECT_EQ(disk.Calls(), 0);
}

TEST_F(RequiredFilesTest, ANameWithoutKnownSourceIsMissingAndNeverAskedFor)
{
    Require(0, u"a.gif", u"");
    disk.Contents[u"/site/a.gif"] = "old";
    EXPECT_EQ(Copy(), MissingFiles{u"a.gif"});
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "old");
    EXPECT_EQ(disk.Contents[u"/site/Y.class"], "Y");
    EXPECT_EQ(dialogs.Said, Names{Text(notAllCopied)});
    EXPECT_EQ(dialogs.LastTone, Tone::Exclamation);
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
    EXPECT_EQ(dialogs.Said, Names{Text(allCopied)});
}

TEST_F(RequiredFilesTest, AsksNothingForASourceThatIsTheDestinationWhateverItsCase)
{
    Require(0, u"a.gif", u"/Site/A.gif");
    disk.Contents[u"/site/a.gif"] = "here";
    EXPECT_EQ(Copy(), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "here");
}

TEST_F(RequiredFilesTest, AFileThatShouldLieInPlaceButDoesNotIsMissing)
{
    disk.Folders = {u"/site", u"/pics", u"/program"};
    Require(0, u"a.gif", u"/site/a.gif");
    EXPECT_EQ(Copy(), MissingFiles{u"a.gif"});
}

TEST_F(RequiredFilesTest, LeavesTheClassFilesOfTheProgramsFolderAlone)
{
    EXPECT_EQ(Copy(u"/program/"), MissingFiles());
    EXPECT_EQ(disk.Writes, (Names{u"/program/a.gif", u"/program/b.gif"}));
    disk.Writes.clear();
    Copy(u"/Program/");
    EXPECT_EQ(disk.Writes.size(), 4u) << "folders are compared to the letter";
}

TEST_F(RequiredFilesTest, CopiesBesideAPageOfTheCurrentFolder)
{
    EXPECT_EQ(Copy(u""), MissingFiles());
    EXPECT_EQ(disk.Writes, (Names{u"a.gif", u"b.gif", u"X.class", u"Y.class"}));
}

/// One fault at one disk call: reads and writes of a.gif, b.gif, X.class and Y.class in turn.
class CopyFaultTest : public RequiredFilesTest,
                      public ::testing::WithParamInterface<std::tuple<int, Fault>>
{
};

TEST_P(CopyFaultTest, EndsInAMissingNameOrInTheFaultItself)
{
    const auto [call, fault] = GetParam();
    const Names names = {u"a.gif", u"b.gif", u"X.class", u"Y.class"};
    const auto failing = static_cast<std::size_t>(call - 1) / 2;
    disk.FailAt(call, fault);

    const Outcome<MissingFiles> outcome = CopyRequiredFiles(Desk(), u"/site/");

    const bool isMissing = fault == Fault::FileNotFound || fault == Fault::PermissionDenied ||
                           fault == Fault::PathFileAccess;
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(disk.FileExists(u"/site/" + names[i]), isMissing ? i != failing : i < failing);
    if (isMissing) {
        EXPECT_EQ(ValueIn(outcome), MissingFiles{names[failing]});
        EXPECT_EQ(dialogs.Said, Names{Text(notAllCopied)});
    } else {
        ASSERT_NE(FaultIn(outcome), nullptr);
        EXPECT_EQ(*FaultIn(outcome), fault);
        EXPECT_EQ(dialogs.Said, Names());
    }
}

const auto everyFault =
    ::testing::Values(Fault::FileNotFound, Fault::PermissionDenied, Fault::PathFileAccess,
                      Fault::PathNotFound, Fault::DiskFull, Fault::DeviceError, Fault::BadFileName);

INSTANTIATE_TEST_SUITE_P(EachCallAndFault, CopyFaultTest,
                         ::testing::Combine(::testing::Range(1, 9), everyFault));

TEST_F(RequiredFilesTest, PublishesTheBackupPageInFrontOfTheFiles)
{
    payload.Effect.HEADHTML = u"<!--h-->";
    EXPECT_EQ(ValueIn(Publish(Desk(), u"/site")), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/ovtemp.html"], NewPageBytes(payload));
    EXPECT_EQ(disk.Writes.at(0), u"/site/ovtemp.html");
    EXPECT_EQ(disk.Writes.size(), 5u);
    EXPECT_EQ(dialogs.Said, Names{Text(allCopied)});
}

TEST_F(RequiredFilesTest, KeepsABackupPageThatTheAuthorWantsToKeepAndStillCopies)
{
    disk.Contents[u"/site/ovtemp.html"] = "old";
    disk.Contents[u"/site/a.gif"] = "old";
    dialogs.ExpectAsk(Text(overwritePage), false);
    dialogs.ExpectAsk(OverwriteQuestion(u"a.gif"), true);
    EXPECT_EQ(ValueIn(Publish(Desk(), u"/site/")), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/ovtemp.html"], "old");
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "a");
}

TEST_F(RequiredFilesTest, ReplacesABackupPageOnYes)
{
    disk.Contents[u"/site/ovtemp.html"] = "old";
    dialogs.ExpectAsk(Text(overwritePage), true);
    EXPECT_EQ(ValueIn(Publish(Desk(), u"/site/")), MissingFiles());
    EXPECT_EQ(disk.Contents[u"/site/ovtemp.html"], NewPageBytes(payload));
}

TEST_F(RequiredFilesTest, EndsPublishingWhenTheBackupPageCannotBeWritten)
{
    disk.FailOn(u"/site/ovtemp.html", Fault::PermissionDenied);
    const auto outcome = Publish(Desk(), u"/site/");
    ASSERT_NE(FaultIn(outcome), nullptr);
    EXPECT_EQ(*FaultIn(outcome), Fault::PermissionDenied);
    EXPECT_EQ(disk.Calls(), 1);
    EXPECT_EQ(dialogs.Said, Names());
}

TEST_F(RequiredFilesTest, BringsPicturesToThePreviewWithoutAWord)
{
    EXPECT_EQ(CopyRequiredFilesForPreview(Desk()), MissingFiles());
    EXPECT_EQ(disk.Writes, (Names{u"/program/a.gif", u"/program/b.gif"}));
    EXPECT_EQ(dialogs.Said, Names());
}

TEST_F(RequiredFilesTest, DoesNotCopyAgainForThePreviewWhatLiesThereInAnyCase)
{
    disk.Contents[u"/program/A.GIF"] = "there";
    disk.Contents[u"/program/b.gif"] = "itself";
    Require(50, u"b.gif", u"/program/b.gif");
    EXPECT_EQ(CopyRequiredFilesForPreview(Desk()), MissingFiles());
    EXPECT_EQ(disk.Calls(), 0);
}

TEST_F(RequiredFilesTest, TellsWhichFilesThePreviewLacks)
{
    Require(1, u"c.gif", u"");
    Require(2, u"d.gif", u"/gone/d.gif");
    EXPECT_EQ(CopyRequiredFilesForPreview(Desk()), (MissingFiles{u"c.gif", u"d.gif"}));
    EXPECT_EQ(disk.Contents[u"/program/b.gif"], "b");
    EXPECT_EQ(dialogs.Said, Names{Text(noPreview)});
    EXPECT_EQ(dialogs.LastTone, Tone::Exclamation);
}

class PreviewFaultTest : public CopyFaultTest
{
};

TEST_P(PreviewFaultTest, CountsEveryFailedCopyAsMissing)
{
    const auto [call, fault] = GetParam();
    disk.FailAt(call, fault);
    EXPECT_EQ(CopyRequiredFilesForPreview(Desk()), MissingFiles{call <= 2 ? u"a.gif" : u"b.gif"});
    EXPECT_EQ(dialogs.Said, Names{Text(noPreview)});
}

INSTANTIATE_TEST_SUITE_P(EachCallAndFault, PreviewFaultTest,
                         ::testing::Combine(::testing::Range(1, 5), everyFault));

} // namespace
} // namespace orvane::testing
