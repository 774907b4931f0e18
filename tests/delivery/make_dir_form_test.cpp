#include "delivery/make_dir_form.h"

#include "delivery/make_dir.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"

namespace orvane::testing {
namespace {

TEST(MakeDirFormTest, CreatesTheFolderBelowTheOneThatItsOwnBoxShowsOrWantsAName)
{
    FakeDesk desk;
    desk.Files.Folders = {u"/", u"/site", u"/site/pages", u"/site/pictures"};
    MakeDirForm form(desk.Bench, u"/site");
    form.show();
    LetRun();
    EXPECT_EQ(RowsOf(form, "Dir1"), (Texts{u"/", u"site", u"pages", u"pictures"}));
    EXPECT_EQ(SelectedRowOf(form, "Dir1"), 1);
    ExpectAccessible(form);
    DoubleClickRow(form, "Dir1", 3);
    Click(form, "cmdOK");
    EXPECT_EQ(desk.Dialogs.TakeSaid(),
              Texts{u"Please enter a new folder name for Orvane to create."});
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.focusWidget(), Find<QWidget>(form, "txtFolder"));
    EXPECT_EQ(form.NewFolder(), std::nullopt);
    Type(form, "txtFolder", u" new pics ");
    Press(*form.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(desk.Files.FolderExists(u"/site/pictures/new pics"));
    EXPECT_EQ(form.NewFolder(), u"/site/pictures/new pics");
    EXPECT_TRUE(desk.Dialogs.Said.empty());
}

TEST(MakeDirTest, NamesTheFolderThatIsThereOrStaysWhereItIs)
{
    FakeDialogs dialogs;
    FakeFileStore disk;
    disk.FailOn(u"/site/new", Fault::PermissionDenied);
    const auto enter = [&](TextView folder, TextView field) {
        return MakeDirEnter(folder, field, disk, dialogs);
    };
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(enter(u"/", u"my pics"), (MakeDirEnd{true, u"/my pics"}));
    EXPECT_EQ(enter(u"/", u"   "), (MakeDirEnd{true, std::nullopt}));
    EXPECT_EQ(enter(u"/site", u"new"), (MakeDirEnd{true, std::nullopt}));
    EXPECT_EQ(dialogs.Said, Texts());
}

} // namespace
} // namespace orvane::testing
