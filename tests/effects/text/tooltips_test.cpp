#include "effects/text/tooltips.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(TooltipsTest, NeedsTheImageAlongOnlyWhenItIsPointedAt)
{
    Tooltips tooltip{.optHoverObject = HoverObject::Words, .txtImage = u"/pictures/photo.gif"};
    EXPECT_EQ(Generate(tooltip).Required, RequiredFiles());
    tooltip.optHoverObject = HoverObject::Image;
    tooltip.txtImage = u"photo.gif";
    EXPECT_EQ(Generate(tooltip).Required, (RequiredFiles{.RequiredFileNames = {u"photo.gif"}}));
}

TEST(TooltipsTest, TakesEveryValueAsTyped)
{
    const Text body = Generate({.txtTooltipText = u"it's «Title» %1\"☃\"",
                                .cboFontStyle = u"bold",
                                .txtWidth = u" 2e2",
                                .txtHeight = u"60",
                                .txtTitleText = u" ",
                                .cboTitleAlign = u"Center",
                                .optHoverObject = HoverObject::Words,
                                .txtMainText = u"«Width» <b>"})
                          .BODYHTML;
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
    EXPECT_EQ(onHover(HoverObject::None, {}),
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
} // namespace orvane::testing
