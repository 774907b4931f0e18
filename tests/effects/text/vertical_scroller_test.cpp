#include "effects/text/vertical_scroller.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(VerticalScrollerTest, WritesScriptAndBox)
{
    const EffectPayload payload =
        Generate({.lstItems = {u"It's <b>new</b>\r\nSecond line", u"Plain message"},
                  .lstLinks = {u"http://www.example.com/o'neil.html", u""},
                  .cboFont = u"Courier New",
                  .cboFontSize = u"14",
                  .cboFontStyle = u"Bold Italic",
                  .TextColor = u"rgb(0,0,128)",
                  .LinkColor = u"rgb(255,0,0)",
                  .cboTextAlign = u"Right",
                  .txtWidth = u"200",
                  .txtHeight = u"100",
                  .BGColor = u"rgb(255,255,192)",
                  .sldrSpeed = 100,
                  .txtPause = u" 2.5 "});
    const EffectPayload expected{.Kind = EffectKind::VerticalScroller,
                                 .HEADHTML = ExpectedText("vertical_scroller_full_head.html"),
                                 .BODYHTML = ExpectedText("vertical_scroller_full_body.html"),
                                 .OnLoadFunc = u"moveSpan",
                                 .OnLoadArgs = u"()",
                                 .SavedHEAD = ExpectedText("vertical_scroller_full_body.html")};
    ExpectSameText(expected.HEADHTML, payload.HEADHTML);
    ExpectSameText(expected.BODYHTML, payload.BODYHTML);
    EXPECT_EQ(payload, expected);
}

TEST(VerticalScrollerTest, TakesSizesAsTypedAndAPauseOnlyWhenItIsANumber)
{
    const VerticalScroller odd{.lstItems = {u"«Speed» \"ü☃\" \\", u"b"},
                               .lstLinks = {u"", u"«Row»"},
                               .cboFontStyle = u"Oblique",
                               .txtWidth = u" 1e2",
                               .txtHeight = u"-5",
                               .sldrSpeed = 0,
                               .txtPause = u"2 sec"};
    EXPECT_EQ(CheckPage(odd, 2), std::nullopt);
    const EffectPayload payload = Generate(odd);
    for (const TextView line :
         {u"   var speed = 105;\r\n", u"   var intPause = 3;\r\n",
          u"   aryText[0] = '«Speed» \"ü☃\" \\';\r\n",
          u"   aryText[1] = '<a class=scrolllink href=\\'«Row»\\'>b</a>';\r\n\r\n   if"})
        EXPECT_NE(Find(payload.HEADHTML, line), 0u) << ToUtf8(line);
    for (const TextView piece : {u"width: 1e2; height:-5;", u"top:150;font-family:Arial;"})
        EXPECT_NE(Find(payload.BODYHTML, piece), 0u) << ToUtf8(piece);
}

TEST(VerticalScrollerTest, ComplainsPageByPage)
{
    const VerticalScroller fresh;
    EXPECT_EQ(CheckPage(fresh, 0), (Complaint{u"Please add an item to the list.", "cmdAdd"}));
    EXPECT_EQ(CheckPage(fresh, 1), std::nullopt);
    const Complaint size{u"Please type a valid width and height for the Vertical Scroller.",
                         "txtWidth"};
    EXPECT_EQ(CheckPage({.txtWidth = u"150px"}, 2), size);
    EXPECT_EQ(CheckPage({.txtHeight = u""}, 2), size);
}

} // namespace
} // namespace orvane::testing
