#include "delivery/manual_copy.h"
#include "delivery/required_files.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

Text OverwriteQuestion(TextView name)
{
    return Join({name, u" already exists in this folder.  Do you wish to overwrite?"});
}

/// Files found by hand in /found, for the folder /site.
class ManualCopyTest : public ::testing::Test
{
protected:
    void CopyByHand(const Texts& selected, TextView from = u"/found")
    {
        for (const Text& name : selected)
            disk.Contents[PathIn(from, name)] = "new";
        ManualCopy({payload, u"/program", disk, dialogs, report}, from, u"/site", selected,
                   missing);
    }

    FakeDialogs dialogs;
    FakeFileStore disk;
    FinishedPayload payload;
    DeliveryReport report;
    MissingFiles missing = {u"a.gif", u"b.gif", u"c.gif", u"a.gif"};
};

TEST_F(ManualCopyTest, TakesCopiedNamesOffTheListAndNamesThem)
{
    CopyByHand({});
    EXPECT_EQ(dialogs.TakeSaid(),
              Texts{u"Select a file from the list and then click the 'Copy' button"});
    CopyByHand({u"a.gif", u"other.txt", u"C.GIF"});
    EXPECT_EQ(disk.Contents[u"/site/a.gif"], "new");
    EXPECT_EQ(missing, (MissingFiles{u"b.gif", u"c.gif"})) << "a page finds c.gif by its own case";
    EXPECT_EQ(dialogs.Said, Texts{u"The following files were successfully copied:\r\n\r\n"
                                  u"a.gif, other.txt, C.GIF, "});
}

TEST_F(ManualCopyTest, AsksBeforeOverwritingInAnyCaseAndSkipsOnNo)
{
    disk.Contents[u"/site/A.gif"] = "old";
    disk.Contents[u"/site/b.gif"] = "old";
    dialogs.ExpectAsk(OverwriteQuestion(u"a.gif"), false);
    dialogs.ExpectAsk(OverwriteQuestion(u"b.gif"), true);
    CopyByHand({u"a.gif", u"b.gif"});
    EXPECT_FALSE(disk.FileExists(u"/site/a.gif"));
    EXPECT_EQ(disk.Contents[u"/site/b.gif"], "new");
    EXPECT_EQ(missing, (MissingFiles{u"a.gif", u"c.gif", u"a.gif"}));
    EXPECT_EQ(dialogs.Said, Texts{u"The following files were successfully copied:\r\n\r\nb.gif, "});
}

TEST_F(ManualCopyTest, TellsWhyAFileFailedAndLeavesAloneWhatLiesThereItself)
{
    disk.FailOn(u"/site/a.gif", Fault::DiskFull);
    CopyByHand({u"a.gif"});
    EXPECT_EQ(dialogs.Said.at(0), u"a.gif: Disk full");
    const int calls = disk.Calls();
    CopyByHand({u"b.gif"}, u"/site/");
    EXPECT_EQ(disk.Calls(), calls);
    EXPECT_EQ(missing, (MissingFiles{u"a.gif", u"c.gif", u"a.gif"}));
}

} // namespace
} // namespace orvane::testing
