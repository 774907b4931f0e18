#include "core/orvane_core.h"

#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

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
    EXPECT_EQ(desk.Dialogs.TakeSaid(),
              Texts{u"Please click the 'Browse' button next to the input box to specify "
                    u"the filename."});
    desk.Settings.Put(u"Misc", u"UnlockInputBoxes", u"1", u"Orvane");
    WarnInputBoxLocked(desk.Settings, desk.Dialogs);
    EXPECT_TRUE(desk.Dialogs.Said.empty());
}

} // namespace
} // namespace orvane::testing
