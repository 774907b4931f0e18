#include "insertion/auto_insert.h"

#include "disk/disk_file_store.h"
#include "tests/support/doubles.h"
#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <utility>

namespace orvane::testing {
namespace {

const Text pagePath = u"/home/jo/site/index.html";
const Text backupPath = u"/home/jo/site/Backup of index.html";
const Text placedPath = u"/state/pages/2001-11-28/home/jo/site/index.html";
const BackupsPlace place{.Folder = u"/state/pages", .Day = u"2001-11-28"};

const std::string oldBytes = "\xEF\xBB\xBF<head>\r\n</head><body>\xC3\xA9</body>";
const std::string newBytes =
    "\xEF\xBB\xBF<head>\r\r\n<!--B-->h<!--E-->\r\n\r\n</head><body>\xC3\xA9</body>";
const std::string runBefore = "<head>x<!--B-->old<!--E--></head>";

constexpr TextView question = u"Orvane has found existing code for this special effect in your "
                              u"Web page.  Do you want to replace it?";
constexpr TextView manual = u"We suggest you manually insert the special effect code into your Web "
                            u"page.  Follow the instructions below.";
constexpr TextView openElsewhere =
    u"Your Web page file is open in another application.  Please close the open Web page file or "
    u"exit the application you are using to edit it.\r\n\r\nThen try to AutoInsert the special "
    u"effect again.";

constexpr TextView tooLarge =
    u"Your Web page file is larger than 512 MB, which is too large for AutoInsert.  Please insert "
    u"the special effect code manually.";

class AutoInsertTest : public ::testing::Test
{
protected:
    AutoInsertTest()
    {
        m_files.Folders = {u"/home", u"/home/jo", u"/home/jo/site", u"/state"};
        m_files.Contents[pagePath] = oldBytes;
        m_payload.BeginMarker = u"<!--B-->";
        m_payload.EndMarker = u"<!--E-->";
        m_payload.Effect.HEADHTML = u"<!--B-->h<!--E-->";
    }

    AutoInsertion Run() { return AutoInsert(m_files, m_dialogs, pagePath, m_payload, place); }
    std::string Bytes(const Text& path) { return m_files.Contents[path]; }

    /// The author was told these words and no others.
    void ExpectSaid(TextView words)
    {
        EXPECT_EQ(m_dialogs.TakeSaid(), Texts{Text(words)});
        EXPECT_EQ(m_dialogs.LastTone, Tone::Plain);
    }

    FakeFileStore m_files;
    FakeDialogs m_dialogs;
    FinishedPayload m_payload;
};

TEST_F(AutoInsertTest, BacksThePageUpBeforeItWritesIt)
{
    EXPECT_EQ(Run(), AutoInsertion::Inserted);
    EXPECT_EQ(Bytes(pagePath), newBytes);
    EXPECT_EQ(Bytes(backupPath), oldBytes);
    EXPECT_EQ(m_files.Writes, (Texts{backupPath, placedPath, pagePath}));
    EXPECT_TRUE(m_dialogs.Said.empty());
}

/// A disk that keeps less of a new file than it says.
class CuttingFileStore : public FakeFileStore
{
public:
    Done PutNew(TextView path, std::string_view bytes, TextView) override
    {
        return Replace(path, bytes.substr(1));
    }
};

TEST_F(AutoInsertTest, LeavesThePageWhenItsBackupDoesNotHoldIt)
{
    CuttingFileStore files;
    files.Contents[pagePath] = oldBytes;
    EXPECT_EQ(AutoInsert(files, m_dialogs, pagePath, m_payload, place), AutoInsertion::NothingDone);
    EXPECT_EQ(files.Contents[pagePath], oldBytes);
    EXPECT_EQ(m_dialogs.TakeSaid().size(), 1u);
}

TEST_F(AutoInsertTest, ReplacesOnYesAndLeavesThePageToTheAuthorOnNo)
{
    m_files.Contents[pagePath] = runBefore;
    m_dialogs.ExpectAsk(Text(question), false);
    EXPECT_EQ(Run(), AutoInsertion::Manual);
    ExpectSaid(manual);
    EXPECT_EQ(Bytes(pagePath), runBefore);
    m_dialogs.ExpectAsk(Text(question), true);
    EXPECT_EQ(Run(), AutoInsertion::Inserted);
    EXPECT_EQ(Bytes(pagePath), "<head>x\r\nx<!--B-->h<!--E-->\r\n</head>");
    EXPECT_EQ(Bytes(backupPath), runBefore);
}

TEST_F(AutoInsertTest, TellsWhichLinesToAddWhenThePageHasNoPlaceForThePageScript)
{
    m_files.Contents[pagePath] = "<body></body>";
    m_payload.Effect.BODYHTML = std::exchange(m_payload.Effect.HEADHTML, Text());
    m_payload.WantsPageScript = true;
    EXPECT_EQ(Run(), AutoInsertion::Inserted);
    EXPECT_EQ(Bytes(pagePath), "<body><\r\n<!--B-->h<!--E-->\r\n</body>");
    const Texts said = m_dialogs.TakeSaid();
    ASSERT_EQ(said.size(), 1u);
    EXPECT_TRUE(said[0].find(u"\r\n<SCRIPT SRC=\"orvane.js\"></SCRIPT>\r\n") != Text::npos);
}

TEST_F(AutoInsertTest, AddsThePageScriptAfterwardsAndKeepsThePageAsItWas)
{
    const std::string page = "<head><!--B-->h<!--E--></head><body onload='a()' onload=\"go(1)\">";
    m_files.Contents[pagePath] = page;
    m_payload.Effect.OnLoadFunc = u"go";
    m_payload.Effect.OnLoadArgs = u"(1)";
    const auto add = [&] {
        return InsertPageScript(m_files, m_dialogs, pagePath, m_payload, place);
    };
    m_files.FailOn(u"/state/pages/2001-11-28 2/home/jo/site/index.html", Fault::DiskFull);
    EXPECT_FALSE(add());
    ExpectSaid(u"Disk full");
    EXPECT_EQ(Bytes(pagePath), page);
    EXPECT_TRUE(add());
    EXPECT_EQ(Bytes(pagePath), "<head><!-- Begin Orvane page script -->\r\n"
                               "<SCRIPT SRC=\"orvane.js\" data-onload=\"go(1)\"></SCRIPT>\r\n"
                               "<!-- End Orvane page script -->" +
                                   page.substr(6));
    EXPECT_EQ(Bytes(u"/state/pages/2001-11-28 3/home/jo/site/index.html"), page);
    EXPECT_FALSE(m_files.FileExists(backupPath)) << "that one holds the page without the effect";
    m_files.Writes.clear();
    EXPECT_TRUE(add());
    EXPECT_TRUE(m_files.Writes.empty());
    m_files.Contents[pagePath] = "<body>";
    EXPECT_FALSE(add());
    EXPECT_EQ(m_dialogs.TakeSaid().size(), 1u);
}

TEST_F(AutoInsertTest, TellsTheFaultOfThePageItself)
{
    m_files.Contents.clear();
    EXPECT_EQ(Run(), AutoInsertion::NothingDone);
    ExpectSaid(u"File not found");
    EXPECT_TRUE(m_files.Writes.empty());
    m_files.Contents[pagePath] = "<head>";
    EXPECT_EQ(Run(), AutoInsertion::NothingDone);
    ExpectSaid(u"Invalid procedure call or argument");
    m_files.Contents[pagePath] = std::string(40000, ' ') + "<head>";
    EXPECT_EQ(Run(), AutoInsertion::NothingDone);
    ExpectSaid(u"Overflow");
    EXPECT_EQ(Bytes(pagePath).size(), 40006u);
}

/// A disk on which an editor saves the page while it is worked on.
class BusyFileStore : public FakeFileStore
{
public:
    Outcome<bool> Exchange(TextView path, std::string_view old, std::string_view bytes,
                           std::string_view rest) override
    {
        Contents[Text(path)] = "saved meanwhile";
        return FakeFileStore::Exchange(path, old, bytes, rest);
    }
};

TEST_F(AutoInsertTest, KeepsWhatAnEditorSavedMeanwhileThoughNothingWasAsked)
{
    BusyFileStore files;
    files.Contents[pagePath] = oldBytes;
    EXPECT_EQ(AutoInsert(files, m_dialogs, pagePath, m_payload, place), AutoInsertion::NothingDone);
    ExpectSaid(u"Another application has changed your Web page file in the meantime.  The file "
               u"stays as that application saved it, without the special effect.\r\n\r\n"
               u"Please try to AutoInsert the special effect again.");
    EXPECT_EQ(files.Contents[pagePath], "saved meanwhile");
}

TEST_F(AutoInsertTest, LeavesThePageOnAFaultAndTellsItsWords)
{
    const std::pair<Fault, TextView> faults[] = {
        {Fault::PermissionDenied, openElsewhere},
        {Fault::DiskFull, u"Disk full"},
        {Fault::DeviceError, u"Device I/O error"},
        {Fault::OutOfMemory, tooLarge},
        {Fault::PathFileAccess, u"Path/File access error"}};
    for (const auto& [fault, words] : faults)
        for (const Text& path : {pagePath, backupPath}) {
            FakeFileStore files = m_files;
            files.FailOn(path, fault);
            EXPECT_EQ(AutoInsert(files, m_dialogs, pagePath, m_payload, place),
                      AutoInsertion::NothingDone);
            ExpectSaid(words);
            EXPECT_EQ(files.Contents, m_files.Contents);
        }
}

TEST_F(AutoInsertTest, KeepsTheFirstBackupOfEachDay)
{
    Run();
    m_dialogs.ExpectAsk(Text(question), true);
    Run();
    EXPECT_EQ(Bytes(backupPath), newBytes);
    EXPECT_EQ(Bytes(placedPath), oldBytes);
    m_dialogs.ExpectAsk(Text(question), true);
    const std::string second = Bytes(pagePath);
    AutoInsert(m_files, m_dialogs, pagePath, m_payload, {place.Folder, u"2001-11-29"});
    EXPECT_EQ(Bytes(placedPath), oldBytes);
    EXPECT_EQ(Bytes(u"/state/pages/2001-11-29/home/jo/site/index.html"), second);
    m_files.FailOn(placedPath, Fault::PermissionDenied);
    m_dialogs.ExpectAsk(Text(question), true);
    EXPECT_EQ(Run(), AutoInsertion::Inserted) << "a backup that cannot be read stays";
    EXPECT_EQ(Bytes(placedPath), oldBytes);
}

/// The same on the real disk, where a downloaded folder may hold anything.
class AutoInsertIntoFolderTest : public AutoInsertTest
{
protected:
    AutoInsertIntoFolderTest()
    {
        Folder.MakeFolder("site");
        Folder.Put("site/index.html", oldBytes, 0640);
        Folder.Put("private", "mine", 0600);
    }

    AutoInsertion Run()
    {
        return AutoInsert(m_store, m_dialogs, Folder.TextAt("site/index.html"), m_payload,
                          {Folder.TextAt("state"), place.Day});
    }

    TestFolder Folder;

private:
    PosixCalls m_calls;
    DiskFileStore m_store{m_calls, u""};
};

TEST_F(AutoInsertIntoFolderTest, BackupIsAFileOfItsOwnWhateverLayUnderItsName)
{
    const char* const backup = "site/Backup of index.html";
    for (const char* target : {"../private", "../none", "index.html", "hard"}) {
        Folder.Put("site/index.html", oldBytes, 0640);
        std::filesystem::remove(Folder.At(backup));
        if (target == std::string_view("hard"))
            Folder.HardLink("site/index.html", backup);
        else
            Folder.Link(target, backup);
        EXPECT_EQ(Run(), AutoInsertion::Inserted) << target;
        EXPECT_EQ(Folder.Get("site/index.html"), newBytes);
        EXPECT_EQ(Folder.Get(backup), oldBytes) << target;
        EXPECT_EQ(Folder.Status(backup).st_mode, S_IFREG | 0640u);
        EXPECT_EQ(Folder.Get("private"), "mine");
        EXPECT_FALSE(Folder.Get("none"));
    }
}

TEST_F(AutoInsertIntoFolderTest, PageThatIsALinkToItsOwnBackupIsLeft)
{
    std::filesystem::rename(Folder.At("site/index.html"), Folder.At("site/Backup of index.html"));
    Folder.Link("Backup of index.html", "site/index.html");
    EXPECT_EQ(Run(), AutoInsertion::NothingDone);
    ExpectSaid(u"Path/File access error");
    EXPECT_EQ(Folder.Get("site/index.html"), oldBytes);
}

TEST_F(AutoInsertIntoFolderTest, PlacedBackupAndItsFoldersAreTheirOwnersAlone)
{
    EXPECT_EQ(Run(), AutoInsertion::Inserted);
    const std::string page = "state/2001-11-28" + Folder.At("site/index.html");
    EXPECT_EQ(Folder.Get(page), oldBytes);
    EXPECT_EQ(Folder.Status(page).st_mode & 07777, 0600u);
    for (const std::string folder : {"state", "state/2001-11-28", "state/2001-11-28/tmp"})
        EXPECT_EQ(Folder.Status(folder).st_mode & 07777, 0700u) << folder;
}

TEST(PagePathTest, NeedsANameAndStartsInTheCurrentFolderUnlessItIsFull)
{
    EXPECT_EQ(CheckPageName(u""),
              (Complaint{u"Please specify the filename of a Web page in the input box below.",
                         "txtFileName"}));
    EXPECT_EQ(CheckPageName(u"index.html"), std::nullopt);
    EXPECT_EQ(PagePath(u"index.html", u"/home/jo"), u"/home/jo/index.html");
    EXPECT_EQ(PagePath(u"site/index.html", u"/home/jo"), u"/home/jo/site/index.html");
    EXPECT_EQ(PagePath(u"/index.html", u"/home/jo"), u"/index.html");
}

} // namespace
} // namespace orvane::testing
