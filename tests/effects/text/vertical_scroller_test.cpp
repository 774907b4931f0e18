#include "effects/text/vertical_scroller.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(VerticalScrollerTest, TakesSizesAsTypedAndAPauseOnlyWhenItIsANumber)
{
    const VerticalScroller odd{.Items = {{u"«Speed» \"ü☃\" \\", u""}, {u"b", u"«Row»"}},
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
