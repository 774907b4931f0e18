#include "disk/in_place_writer.h"

#include "disk/disk_file_store.h"
#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <array>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvane::testing {
namespace {

class InPlaceWriterTest : public ::testing::Test
{
protected:
    Done Replace(std::string_view name) { return Store.Replace(Folder.TextAt(name), "new"); }
    Outcome<std::string> Read(std::string_view name) const
    {
        return Store.Read(Folder.TextAt(name));
    }

    /// A page that several names share, half overwritten by a program that was killed.
    std::string LeaveHalfWritten(std::string_view bytes)
    {
        Folder.Put("page", bytes);
        Folder.HardLink("page", "alias");
        std::array<char, 32> name{};
        std::snprintf(name.data(), name.size(), ".orvane-%lx.recovery",
                      Folder.Status("page").st_ino);
        Folder.Put(name.data(), WriteRecoveryCopy({"page", "old bytes", "the new ones"}));
        return name.data();
    }

    TestFolder Folder;
    PosixCalls Calls;
    DiskFileStore Store{Calls, Folder.TextAt("state")};
};

TEST_F(InPlaceWriterTest, HalfWrittenFileGetsItsOldBytesBackAndAnyOtherStaysAsItIs)
{
    const std::tuple<const char*, const char*, bool, bool> cases[] = {
        {"the newes", "old bytes", false, false},
        {"the new ones", "the new ones", false, false},
        {"mended since", "mended since", true, false},
        {"mended again", "mended again", true, true}};
    for (const auto& [found, read, isCopyKept, isSecond] : cases) {
        const std::string copy = LeaveHalfWritten(found);
        EXPECT_EQ(ValueIn(Read("alias")), read);
        EXPECT_EQ(Folder.Get("page"), read);
        EXPECT_FALSE(Folder.Get(copy));
        EXPECT_EQ(Folder.Get(copy + ".kept").has_value(), isCopyKept);
        EXPECT_EQ(Folder.Get(copy + ".kept-2").has_value(), isSecond);
        EXPECT_EQ(Store.Remove(Folder.TextAt("alias")), Done());
    }
}

TEST_F(InPlaceWriterTest, NeitherReadsNorWritesInPlaceWhileAnotherProgramDoes)
{
    const std::string copy = LeaveHalfWritten("the newes");
    const int writer = ::open(Folder.At("page").c_str(), O_RDWR);
    ASSERT_EQ(::flock(writer, LOCK_EX), 0);
    EXPECT_EQ(std::get<Fault>(Read("page")), Fault::PermissionDenied);
    ASSERT_EQ(::unlink(Folder.At(copy).c_str()), 0);
    EXPECT_EQ(Replace("page"), Done(Fault::PermissionDenied));
    EXPECT_EQ(Folder.Get("page"), "the newes");
    ::close(writer);
    EXPECT_EQ(Replace("page"), Done());
}

TEST_F(InPlaceWriterTest, RecoveryCopyCountsIfItIsTheUsersTheOwnersOrTheSuperusers)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs a second user";
    constexpr uid_t user = 65534;
    constexpr uid_t author = 1234;
    ASSERT_EQ(::chmod(Folder.At("").c_str(), 0777), 0);
    for (const uid_t owner : {uid_t{0}, user, author, uid_t{4321}}) {
        for (const char* name : {"page", "alias"})
            ::unlink(Folder.At(name).c_str());
        const std::string copy = LeaveHalfWritten("the newes");
        ASSERT_EQ(::chmod(Folder.At("page").c_str(), 0666), 0);
        ASSERT_EQ(::chown(Folder.At("page").c_str(), author, author), 0);
        ASSERT_EQ(::chown(Folder.At(copy).c_str(), owner, owner), 0);
        const OrdinaryUser ordinary;
        EXPECT_EQ(ValueIn(Read("page")), owner == 4321 ? "the newes" : "old bytes") << owner;
    }
}

TEST(RecoveryCopyTest, TellsAnOverwritingCutShortFromAnotherContent)
{
    const RecoveryCopy growing{"", "abc", "ABCDEF"};
    const RecoveryCopy shrinking{"", "ABCDEF", "abc"};
    const std::pair<std::string_view, bool> cases[] = {
        {{"abc", 3}, true},      {{"ABCDEF", 6}, true}, {{"ABcD", 4}, true},
        {{"Abc\0\0F", 6}, true}, {{"A\0c", 3}, false},  {{"AB", 2}, false},
        {{"ABCDEFG", 7}, false}, {{"ABCDeF", 6}, false}};
    for (const auto& [content, expected] : cases) {
        EXPECT_EQ(IsHalfWritten(content, growing), expected) << content;
        // A gap of zeros can only lie behind the old end.
        if (content.find('\0') == content.npos) {
            EXPECT_EQ(IsHalfWritten(content, shrinking), expected) << content;
        }
    }
}

TEST(RecoveryCopyTest, IsReadWholeOrNotAtAll)
{
    const RecoveryCopy copy{"/a page\n.html", std::string_view("old\0 1 of", 9), "new\r\n"};
    const std::string bytes = WriteRecoveryCopy(copy);
    EXPECT_EQ(ReadRecoveryCopy(bytes), copy);
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(ReadRecoveryCopy(std::string_view(bytes).substr(0, size)));
    EXPECT_FALSE(ReadRecoveryCopy(bytes + "x"));
}

} // namespace
} // namespace orvane::testing
