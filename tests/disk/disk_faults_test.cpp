#include "disk/disk_file_store.h"
#include "tests/support/fault_trials.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

const std::string oldPage = "<html>" + std::string(300, 'o') + "</html>\r\n";
const std::string newPage = "<html>" + std::string(500, 'n') + "</html>\r\n";
const std::string longPage = "<html>" + std::string(700, 'l') + "</html>\r\n";
const char* const pageName = "page/index.html";

Report ReportOf(const Done& done)
{
    if (const Fault* fault = FaultIn(done))
        return {.Said = {Text(Words(*fault))}};
    return {.IsComplete = true};
}

Report Replace(FileStore& files, const TestFolder& folder)
{
    return ReportOf(files.Replace(folder.TextAt(pageName), newPage));
}

Report Exchange(FileStore& files, const TestFolder& folder)
{
    const auto done = files.Exchange(folder.TextAt(pageName), oldPage, newPage);
    if (const Fault* fault = FaultIn(done))
        return ReportOf(*fault);
    // A second run finds the new bytes.
    return {.IsComplete = ValueIn(done) || folder.Get(pageName) == newPage};
}

Report Copy(FileStore& files, const TestFolder& folder)
{
    return ReportOf(files.Copy(folder.TextAt("source"), folder.TextAt(pageName)));
}

Report PutNew(FileStore& files, const TestFolder& folder)
{
    return ReportOf(
        files.PutNew(folder.TextAt(pageName), newPage, folder.TextAt("other/like.html")));
}

Report PutPrivate(FileStore& files, const TestFolder& folder)
{
    return ReportOf(files.PutPrivate(folder.TextAt(pageName), newPage));
}

void PutPage(const TestFolder& folder)
{
    folder.Put(pageName, oldPage, 0640);
}

void PutHardLinked(const TestFolder& folder)
{
    PutPage(folder);
    folder.HardLink(pageName, "page/alias.html");
}

void LockFolder(const TestFolder& folder)
{
    ASSERT_EQ(::chmod(folder.At("page").c_str(), 0555), 0);
}

/// Lets the page's writer be killed while the page holds neither the old bytes nor the new ones.
void LeaveHalfWritten(const TestFolder& folder)
{
    for (int call = 1; folder.Get(pageName) == oldPage;) {
        FaultyCalls calls;
        calls.Arm(Trouble::KillHalfway, call);
        DiskFileStore files(calls, folder.TextAt("state"));
        EXPECT_THROW(std::ignore = files.Replace(folder.TextAt(pageName), longPage), Killed);
        call = calls.NextCall();
    }
}

void PutSource(const TestFolder& folder)
{
    folder.Put("source", newPage);
}

/// Does one after the other.
auto Both(void (*first)(const TestFolder&), void (*second)(const TestFolder&))
{
    return [=](const TestFolder& folder) {
        first(folder);
        second(folder);
    };
}

auto NewBytesIn(std::vector<std::string> names)
{
    return [=](const TestFolder&) {
        Contents written;
        for (const std::string& name : names)
            written[name] = newPage;
        return written;
    };
}

const auto thePage = NewBytesIn({pageName});
const auto bothNames = NewBytesIn({pageName, "page/alias.html"});

const WritingWay ways[] = {
    {"NewFile", [](const TestFolder&) {}, Replace, thePage, true},
    {"OldFile", PutPage, Replace, thePage, true, true},
    {"ShrinkingFile", [](const TestFolder& f) { f.Put(pageName, longPage, 0640); }, Replace,
     thePage, true, true},
    {"Link",
     [](const TestFolder& f) {
         f.Put("other/real.html", oldPage, 0640);
         f.Link("real.html", "other/second.html");
         f.Link("../other/second.html", pageName);
     },
     Replace, NewBytesIn({"other/real.html"}), true, true},
    {"DanglingLink", [](const TestFolder& f) { f.Link("../other/real.html", pageName); }, Replace,
     NewBytesIn({"other/real.html"}), true},
    {"HardLinked", PutHardLinked, Replace, bothNames, true, true},
    {"ShrinkingHardLinked",
     [](const TestFolder& f) {
         f.Put(pageName, longPage, 0640);
         f.HardLink(pageName, "page/alias.html");
     },
     Replace, bothNames, true, true},
    {"LockedFolder", Both(PutPage, LockFolder), Replace, thePage, true, true},
    {"HardLinkedInLockedFolder", Both(PutHardLinked, LockFolder), Replace, bothNames, true, true},
    {"HalfWritten", Both(PutHardLinked, LeaveHalfWritten), Replace, bothNames, true, true},
    {"HalfWrittenInLockedFolder",
     [](const TestFolder& f) {
         Both(PutPage, LockFolder)(f);
         LeaveHalfWritten(f);
     },
     Replace, thePage, true, true},
    {"Leftover",
     [](const TestFolder& f) {
         PutPage(f);
         f.Put("page/.orvane-0123456789abcdef.tmp", "half", 0600);
     },
     Replace, thePage, true, true},
    {"Exchange", PutPage, Exchange, thePage, true, true},
    {"ExchangeHardLinked", PutHardLinked, Exchange, bothNames, true, true},
    {"CopyToNewFile", PutSource, Copy, thePage, true},
    {"CopyToOldFile", Both(PutSource, PutPage), Copy, thePage, true, true},
    {"CopyToHardLinked", Both(PutSource, PutHardLinked), Copy, thePage, true, true},
    {"PutPrivate", PutPage, PutPrivate, thePage, true, true},
    {"PutNewLikeAnother", [](const TestFolder& f) { f.Put("other/like.html", oldPage, 0640); },
     PutNew, thePage, true, true},
};

class DiskFaultsTest : public ::testing::TestWithParam<WritingWay>
{
};

TEST_P(DiskFaultsTest, PageHoldsTheOldOrTheNewBytesWhateverGoesWrongAtAnyCall)
{
    const int trials = FaultTrials(GetParam()).PlayAll();
    RecordProperty("trials", trials);
    EXPECT_GT(trials, 100);
}

INSTANTIATE_TEST_SUITE_P(Ways, DiskFaultsTest, ::testing::ValuesIn(ways),
                         [](const auto& way) { return way.param.Name; });

} // namespace
} // namespace orvane::testing
