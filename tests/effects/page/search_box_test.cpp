#include "effects/page/search_box.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(SearchBoxTest, AsksForASiteToSearchIn)
{
    SearchBox box{.optSearch = SearchPlace::Site};
    EXPECT_EQ(Check(box), (Complaint{u"Please enter a domain name or Web site in the input box "
                                     u"below.",
                                     "txtURL"}));
    box.txtURL = u"«Site»\"é☃";
    EXPECT_EQ(Check(box), std::nullopt);
    EXPECT_NE(Find(Generate(box, {}).BODYHTML, u" value=\"«Site»\"é☃\">\r\n<INPUT type=submit"),
              0u);
}

TEST(SearchBoxTest, AsksForAWholeAddressToTranslate)
{
    const Complaint complaint{
        u"The Web page you wish to translate must be specified with the entire URL.  For example, "
        u"type \"http://www.mysite.example/mypage.html\" and not \"mypage.html\"",
        "txtTranslateURL"};
    for (const char16_t* url :
         {u"", u"http:/", u"http://", u"HTTP://a", u"https://a", u" http://a"})
        EXPECT_EQ(Check({.Mode = Text(translateMode), .txtTranslateURL = url}), complaint);
    EXPECT_EQ(Check({.Mode = Text(translateMode), .txtTranslateURL = u"http:// "}), std::nullopt);
}

} // namespace
} // namespace orvane::testing
