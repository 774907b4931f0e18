#include "effects/text/tooltips.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ExpectedText;
using testing::ExpectSameText;

Tooltips FullTooltip()
{
    return {.txtTooltipText = u"A fact, told briefly.",
            .cboFont = u"Times New Roman",
            .cboFontSize = u"14",
            .cboFontStyle = u"Bold Italic",
            .TextColor = u"rgb(0,0,128)",
            .BGColor = u"rgb(255,255,192)",
            .txtWidth = u"200",
            .txtHeight = u"60",
            .chk3D = true,
            .cboDisplayLocation = u"Above the mousepointer",
            .txtTitleText = u"Did you know?",
            .cboTitleAlign = u"Center",
            .optHoverObject = HoverObject::Words,
            .txtMainText = u"Point here"};
}

TEST(TooltipsTest, ComesUpOverTextAndNeedsNoFile)
{
    Tooltips tooltip = FullTooltip();
    tooltip.txtImage = u"/pictures/photo.gif"; // browsed before the author chose the text
    const EffectPayload payload = Generate(tooltip);
    const EffectPayload expected{.Kind = EffectKind::Tooltips,
                                 .HEADHTML = ExpectedText("tooltip_text_head.html"),
                                 .BODYHTML = ExpectedText("tooltip_text_body.html")};
    ExpectSameText(expected.HEADHTML, payload.HEADHTML);
    ExpectSameText(expected.BODYHTML, payload.BODYHTML);
    EXPECT_EQ(payload, expected);
}

TEST(TooltipsTest, ComesUpOverAnImageThatLiesBesideThePage)
{
    Tooltips tooltip{.txtTooltipText = u"A picture",
                     .optHoverObject = HoverObject::Image,
                     .txtImage = u"/pictures/photo.gif"};
    EffectPayload expected{.Kind = EffectKind::Tooltips,
                           .HEADHTML = ExpectedText("tooltip_image_head.html"),
                           .BODYHTML = ExpectedText("tooltip_image_body.html")};
    expected.Required.Names[0] = u"photo.gif";
    expected.Required.Sources[0] = u"/pictures/photo.gif";
    const EffectPayload payload = Generate(tooltip);
    ExpectSameText(expected.BODYHTML, payload.BODYHTML);
    EXPECT_EQ(payload, expected);
    tooltip.txtImage = u"photo.gif";
    expected.Required.Sources[0].clear();
    EXPECT_EQ(Generate(tooltip), expected);
}

TEST(TooltipsTest, TakesEveryValueAsTyped)
{
    Tooltips tooltip = FullTooltip();
    tooltip.txtTooltipText = u"it's «Title» %1\"☃\"";
    tooltip.txtTitleText = u" ";
    tooltip.txtWidth = u" 2e2";
    tooltip.cboFontStyle = u"bold";
    tooltip.txtMainText = u"«Width» <b>";
    const Text body = Generate(tooltip).BODYHTML;
    for (const TextView piece :
         {u"width: 2e2; height:60;", u"text-align:Center'> </div>", u"'padding:3px;font-family:",
          u">it's «Title» %1\"☃\"</div></div><span", u"'hideBox()'>«Width» <b></span>"})
        EXPECT_NE(Find(body, piece), 0u) << ToUtf8(piece);
}

TEST(TooltipsTest, ComplainsPageByPage)
{
    const auto onHover = [](HoverObject object, const Tooltips& values) {
        Tooltips tooltip = values;
        tooltip.optHoverObject = object;
        return CheckPage(tooltip, 2).value_or(Complaint{});
    };
    const Tooltips fresh;
    EXPECT_EQ(CheckPage(fresh, 0),
              (Complaint{u"Please type the required text in the box below.", "txtTooltipText"}));
    EXPECT_EQ(CheckPage({.txtTooltipText = u" "}, 0), std::nullopt);
    const Complaint size{u"Please type a valid width and height.", "txtTitleText"};
    EXPECT_EQ(CheckPage({.txtWidth = u"wide"}, 1), size);
    EXPECT_EQ(CheckPage({.txtHeight = u""}, 1), size);
    EXPECT_EQ(CheckPage({.txtHeight = u"-1e2 "}, 1), std::nullopt);
    EXPECT_EQ(onHover(HoverObject::None, FullTooltip()),
              (Complaint{u"Please select which type of object (text or image) you wish the tooltip "
                         u"to be associated with.",
                         "optHoverObject(0)"}));
    EXPECT_EQ(onHover(HoverObject::Words, {.txtMainText = u"  ", .txtImage = u"a.gif"}),
              (Complaint{u"Please specify text below.", "txtMainText"}));
    EXPECT_EQ(onHover(HoverObject::Image, {.txtMainText = u"a", .txtImage = u" "}),
              (Complaint{u"Please specify an image.", "txtImage"}));
    EXPECT_EQ(onHover(HoverObject::Image, {.txtImage = u"a b.gif"}), Complaint{});
}

} // namespace
} // namespace orvane
