#include "core/payload.h"

#include "core/catalogue.h"
#include "insertion/new_page.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <map>

namespace orvane::testing {
namespace {

EffectPayload PopupWindowPayload()
{
    return {.Kind = EffectKind::PopupWindow,
            .HEADHTML = u"<!--h-->",
            .OnLoadFunc = u"a",
            .OnLoadArgs = u"()",
            .OnUnloadFunc = u"b",
            .OnUnloadArgs = u"()"};
}

TEST(PayloadTest, WrapsCodeInMarkersAndLeavesEmptyCodeEmpty)
{
    const FinishedPayload finished = Finish(PopupWindowPayload());
    EXPECT_EQ(finished.Effect.HEADHTML,
              u"<!-- ***** Begin:Varlo Popup Window special effect ***** -->\r\n<!--h-->"
              u"<!-- ***** End:Varlo Popup Window special effect ***** -->");
    EXPECT_EQ(finished.Effect.BODYHTML, u"");
    EXPECT_EQ(finished.PreviewCode, finished.Effect.HEADHTML + u"\r\n");
}

TEST(PayloadTest, LeavesTwoBlanksBetweenTheBodyAttributes)
{
    EXPECT_EQ(Finish(PopupWindowPayload()).BODYAttribute, u" onLoad=\"a()\"  onUnload=\"b()\" ");
    EffectPayload onUnloadOnly = PopupWindowPayload();
    onUnloadOnly.OnLoadFunc.clear();
    EXPECT_EQ(Finish(onUnloadOnly).BODYAttribute, u" onUnload=\"b()\" ");
}

TEST(PayloadTest, FlagsComeFromTheKindsRow)
{
    EffectPayload effect{.Kind = EffectKind::Sound};
    const FinishedPayload sound = Finish(effect);
    EXPECT_TRUE(sound.NeedsFiles && sound.ScriptedHelp && sound.ReplaceInBody);
    effect.Kind = EffectKind::SoundReserved;
    const FinishedPayload reserved = Finish(effect);
    EXPECT_FALSE(reserved.NeedsFiles || reserved.ScriptedHelp || reserved.ReplaceInBody);
}

TEST(PayloadTest, TooltipsNeedFilesOnlyWhenOneIsListed)
{
    EffectPayload effect{.Kind = EffectKind::Tooltips};
    EXPECT_FALSE(Finish(effect).NeedsFiles);
    effect.Required.RequiredFileNames[0] = u"a.gif";
    EXPECT_TRUE(Finish(effect).NeedsFiles);
}

TEST(NewPageTest, ShowsBothAttributesAndAnEmptyBodyLine)
{
    ExpectSameBytes(ExpectedBytes("new_page_both_attributes.html"),
                    NewPageBytes(Finish(PopupWindowPayload())));
}

TEST(CatalogueTest, EveryRowOpensByACommandAndOnlyTwinsShareOne)
{
    std::map<ControlName, int> buttons;
    for (const CatalogueRow& row : Catalogue()) {
        EXPECT_NE(FindCommand(row.MenuCommand), nullptr) << row.MenuCommand;
        buttons[row.MenuCommand] += row.HasButton ? 1 : 0;
    }
    EXPECT_EQ(Catalogue().size(), 50u);
    for (const auto& [command, count] : buttons)
        EXPECT_EQ(count, 1) << command;
    EXPECT_EQ(FindRow(static_cast<EffectKind>(41)), nullptr);
}

} // namespace
} // namespace orvane::testing
