#include "effects/page/pulldown_menu.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(PulldownMenuTest, PutsValuesInUnescapedAndKnowsBlankAndSeparatorExactly)
{
    const Text body =
        Generate({.Items = {{u"«URL» \"a\" é☃", u"o'neil.html"}, {u"---------------------", u"x"}},
                  .cboTarget = u"Blank «Item»'"})
            .BODYHTML;
    EXPECT_NE(Find(body, u"          <OPTION VALUE=\"o'neil.html\">«URL» \"a\" é☃\r\n"
                         u"          <OPTION VALUE=\"x\">---------------------\r\n    </SELECT>"),
              0u);
    EXPECT_NE(Find(body, u"    window.parent.frames['Blank «Item»''].location = "), 0u);
}

TEST(PulldownMenuTest, AnItemNeedsItsTextAndThenItsAddress)
{
    MenuItem item;
    EXPECT_EQ(
        Check(item),
        (Complaint{u"Enter menu item text in the text input box or click Cancel.", "txtMenuItem"}));
    item.txtMenuItem = u" ";
    EXPECT_EQ(Check(item),
              (Complaint{u"Enter a Web page URL in the text input box or click Cancel.",
                         "txtMenuItemURL"}));
    item.txtMenuItemURL = u"WWW.example.com";
    EXPECT_EQ(Check(item), std::nullopt);
    Tidy(item);
    EXPECT_EQ(item.txtMenuItemURL, u"http://WWW.example.com");
    EXPECT_EQ(Check(PulldownMenu()),
              (Complaint{u"Please enter 1 or more menu items in the list below.", "List1"}));
}

} // namespace
} // namespace orvane::testing
