#include "effects/page/search_box.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ExpectedText;
using testing::ExpectSameText;

TEST(SearchBoxTest, WritesEachFormWithItsPicture)
{
    const std::pair<const char*, SearchBox> cases[] = {
        {"search_box_web.html", {}},
        {"search_box_site.html", {.optSearch = SearchPlace::Site, .txtURL = u"mysite.com"}},
        {"translate_box.html",
         {.Mode = Text(translateMode), .txtTranslateURL = u"http://www.example.com/mypage.html"}},
    };
    for (const auto& [file, box] : cases) {
        EXPECT_EQ(Check(box), std::nullopt);
        const EffectPayload payload = Generate(box);
        ExpectSameText(ExpectedText(file), payload.BODYHTML);
        EffectPayload expected{.Kind = box.Mode == searchMode ? EffectKind::SearchBox
                                                              : EffectKind::Translator,
                               .BODYHTML = ExpectedText(file)};
        expected.Required.Names[0] = u"GoogleLogo.gif";
        EXPECT_EQ(payload, expected);
    }
    EXPECT_NE(Find(Generate({.optSearch = SearchPlace::Site, .txtURL = u"«Site»\"é☃"}).BODYHTML,
                   u" value=\"«Site»\"é☃\">\r\n<INPUT type=submit"),
              0u);
}

TEST(SearchBoxTest, AsksForASiteToSearchIn)
{
    SearchBox box{.optSearch = SearchPlace::Site};
    EXPECT_EQ(Check(box), (Complaint{u"Please enter a domain name or Web site in the input box "
                                     u"below.",
                                     "txtURL"}));
    box.txtURL = u" ";
    EXPECT_EQ(Check(box), std::nullopt);
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
} // namespace orvane
