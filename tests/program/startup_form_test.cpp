#include "program/startup.h"

#include "program/qt_resources.h"
#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(StartUpTest, LooksAtOneCharacterOfTheBrowserVersionOnly)
{
    EXPECT_TRUE(PassesVersionGate(Text(u"5.50.4134.0")));
    EXPECT_TRUE(PassesVersionGate(Text(u"4")));
    for (const TextView version : {u"3.9", u"10.0", u"", u"x"})
        EXPECT_FALSE(PassesVersionGate(Text(version))) << ToUtf8(version);
    EXPECT_FALSE(PassesVersionGate(RegistryVariant()));
}

constexpr TextView gateQuestion =
    u"Orvane requires Internet Explorer 4.0 or above to be installed on your computer.\r\n\r\n"
    u"Would you like to download the Netscape version of Orvane or Internet Explorer?";

TEST(StartUpTest, FailedGateOffersTheDownloadOrGoesOnWithAWarning)
{
    FakeDesk desk;
    EXPECT_EQ(StartUp(desk.Bench), FirstWindow::OVMain) << "without a registry there is no gate";
    EXPECT_EQ(desk.Core.DefaultPath, u"c:\\");
    desk.Settings.Put(u"Misc", u"DefaultPath", u"/pictures", u"Orvane");
    desk.Bench.PlatformBrowserVersion = u"10.0";
    desk.Dialogs.ExpectAsk(Text(gateQuestion), true);
    EXPECT_EQ(StartUp(desk.Bench), FirstWindow::DownloadOV);
    EXPECT_TRUE(desk.Dialogs.Said.empty());
    EXPECT_EQ(desk.Core.DefaultPath, u"/pictures");

    desk.Dialogs.ExpectAsk(Text(gateQuestion), false);
    EXPECT_EQ(StartUp(desk.Bench), FirstWindow::OVMain);
    EXPECT_EQ(desk.Dialogs.Said,
              Texts{u"You can attempt to use Orvane without having Internet Explorer 4 or above "
                    u"installed on your computer, but it may not work correctly."});
}

TEST(InstallResourcesTest, OpensOneFileWhereAllAreAsTheSameBuildLeftThem)
{
    FakeDesk desk;
    const auto install = [&](TextView build) {
        desk.Files.Reads.clear();
        InstallResources(desk.Files, desk.Dialogs, u"/program", build);
        return desk.Files.Reads.size();
    };
    const std::size_t all = install(u"one");
    const auto installed = desk.Files.Contents;
    EXPECT_GT(all, 10u);
    EXPECT_EQ(install(u"one"), 1u);
    desk.Files.Contents.erase(u"/program/orvane.hlp");
    desk.Files.Contents[u"/program/invisi.gif"] = "torn";
    install(u"one");
    EXPECT_EQ(desk.Files.Contents, installed);
    EXPECT_EQ(install(u"two"), all);
}

} // namespace
} // namespace orvane::testing
