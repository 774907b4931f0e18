#include "services/preferences.h"

#include "tests/support/doubles.h"

namespace orvane {
namespace {

using testing::FakeDesk;

TEST(PreferencesTest, OpenWithTheDefaultBrowserUnlessAnotherToolSetTheFlag)
{
    FakeDesk desk;
    desk.Settings.Put(u"Apps", u"Browser", u"/opt/b", u"Orvane");
    desk.Settings.Put(u"Apps", u"Override", u"1", u"Orvane");
    EXPECT_EQ(LoadPreferences(desk.Settings).txtBrowser, u"default browser");
    desk.Settings.Put(u"Misc", u"Override", u"1", u"Orvane");
    EXPECT_EQ(LoadPreferences(desk.Settings).txtBrowser, u"/opt/b");
}

TEST(PreferencesTest, AreStoredInOrderUnderTheirKeys)
{
    FakeDesk desk;
    SavePreferences({.chkOverride = true, .txtDefaultPath = u"/p", .cboWebPageEditor = u"Mine"},
                    desk.Core, desk.Settings);
    EXPECT_EQ(desk.Settings.Writes,
              (std::vector<Text>{u"Apps/Browser", u"Apps/Override", u"Misc/UnlockInputBoxes",
                                 u"Misc/HTMLEditor", u"Misc/DefaultPath"}));
    std::vector<Text> values;
    for (const auto& [key, value] : desk.Settings.Stored)
        values.push_back(value);
    EXPECT_EQ(values, (std::vector<Text>{u"default browser", u"1", u"/p", u"Mine", u"0"}));
    EXPECT_EQ(desk.Core.DefaultPath, u"/p");

    SavePreferences({.txtDefaultPath = u""}, desk.Core, desk.Settings);
    EXPECT_EQ(LoadPreferences(desk.Settings).txtDefaultPath, u"/p");
}

} // namespace
} // namespace orvane
