#include "core/orvane_core.h"

#include "core/fault.h"
#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::FakeDesk;

TEST(OrvaneCoreTest, EscapesEveryApostrophe)
{
    EXPECT_EQ(EscapeApostrophes(u"it's 'so'"), u"it\\'s \\'so\\'");
}

TEST(OrvaneCoreTest, RegistryTextKeepsItsTerminatorAndAFailedReadEmptiesTheVariant)
{
    using Type = RegistryAnswer::Type;
    const RegistryVariant before = Text(u"before");
    const Text stored(u"5.50\0", 5);
    EXPECT_EQ(AfterRegistryRead(before, {Type::Characters, stored}), RegistryVariant(stored));
    EXPECT_EQ(AfterRegistryRead(before, {Type::Characters, stored, 0, true}), RegistryVariant());
    EXPECT_EQ(AfterRegistryRead(before, {Type::Number, {}, 5}), RegistryVariant(5));
    EXPECT_EQ(AfterRegistryRead(before, {Type::Missing}), before);
    EXPECT_EQ(AfterRegistryRead(before, {Type::Other}), before);
}

TEST(OrvaneCoreTest, ReminderToBrowseComesUnlessFileFieldsAreUnlocked)
{
    FakeDesk desk;
    WarnInputBoxLocked(desk.Settings, desk.Dialogs);
    EXPECT_EQ(
        desk.Dialogs.TakeSaid(),
        std::vector<Text>{u"Please click the 'Browse' button next to the input box to specify "
                          u"the filename."});
    desk.Settings.Put(u"Misc", u"UnlockInputBoxes", u"1", u"Orvane");
    WarnInputBoxLocked(desk.Settings, desk.Dialogs);
    EXPECT_TRUE(desk.Dialogs.Said.empty());
}

TEST(OrvaneCoreTest, CancelledBrowseStoresNothing)
{
    FakeDesk desk;
    desk.Core.BrowserPathChoice = u"kept";
    desk.Dialogs.AnswerOpenFile(std::nullopt);
    BrowseDialog(desk.Core, desk.Dialogs, {});
    EXPECT_EQ(desk.Core.BrowserPathChoice, u"kept");
    desk.Dialogs.AnswerOpenFile(u"/bin/browser");
    BrowseDialog(desk.Core, desk.Dialogs, {});
    EXPECT_EQ(desk.Core.BrowserPathChoice, u"/bin/browser");
}

TEST(FaultTest, ErrorsOfTheSystemHaveTheirNumbers)
{
    const auto number = [](std::errc code) {
        return static_cast<int>(FaultOf(std::make_error_code(code)));
    };
    EXPECT_EQ(number(std::errc::no_such_file_or_directory), 53);
    EXPECT_EQ(number(std::errc::not_a_directory), 76);
    EXPECT_EQ(number(std::errc::permission_denied), 70);
    EXPECT_EQ(number(std::errc::read_only_file_system), 70);
    EXPECT_EQ(number(std::errc::text_file_busy), 70);
    EXPECT_EQ(number(std::errc::is_a_directory), 75);
    EXPECT_EQ(number(std::errc::no_space_on_device), 61);
    EXPECT_EQ(number(std::errc::too_many_files_open), 67);
    EXPECT_EQ(number(std::errc::io_error), 57);
}

} // namespace
} // namespace orvane
