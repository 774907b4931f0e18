#include "delivery/make_dir.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

TEST(MakeDirTest, NamesTheNewFolderOrStaysWhereItIs)
{
    FakeDialogs dialogs;
    FakeFileStore disk;
    const auto enter = [&](TextView folder, TextView field) {
        return MakeDirEnter(folder, field, disk, dialogs);
    };
    EXPECT_EQ(enter(u"/", u"  my pics "), (MakeDirEnd{true, u"/my pics"}));
    EXPECT_EQ(enter(u"/", u"my pics"), (MakeDirEnd{true, u"/my pics"})) << "it is there now";
    EXPECT_EQ(enter(u"/", u"   "), (MakeDirEnd{true, std::nullopt}));
    disk.FailOn(u"/site/new", Fault::PermissionDenied);
    EXPECT_EQ(enter(u"/site", u"new"), (MakeDirEnd{true, std::nullopt}));
    EXPECT_EQ(dialogs.Said, std::vector<Text>());
}

} // namespace
} // namespace orvane::testing
