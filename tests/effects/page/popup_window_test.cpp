#include "effects/page/popup_window.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// The body of a case of the table, and the arguments of its call.
std::pair<Text, Text> Expected(TextView name)
{
    const Text table = ExpectedText("popup_window_lines.tsv");
    const std::size_t row = Find(table, Join({name, u"\t"})) + name.size() + 1;
    const TextView body = Mid(table, row, Find(table, u"\n", row) - row);
    const std::size_t args = Find(body, u"window.open(") + 11;
    return {Join({body, u"\r\n"}), Text(Mid(body, args, Find(body, u")", args) - args + 1))};
}

TEST(PopupWindowTest, CallsTheWindowWhenThePageLoadsOrIsLeft)
{
    const auto [body, args] = Expected(u"load");
    EffectPayload expected{.Kind = EffectKind::PopupWindow,
                           .BODYHTML = body,
                           .OnLoadFunc = u"window.open",
                           .OnLoadArgs = args};
    expected.Required.Names[0] = u"http://www.example.com/news.html";
    EXPECT_EQ(expected,
              Generate({WhenToAppear::OnLoad, u"", u"news", expected.Required.Names[0], u" 400 ",
                        u" 300 ", u" 50 ", u" 60 ", true, true, true, true, true, true, true}));

    const EffectPayload exit =
        Generate({WhenToAppear::OnExit, u"", u"bye", u"bye.html", u"200", u"100"});
    ExpectSameText(Expected(u"exit").first, exit.BODYHTML);
    EXPECT_EQ(exit.OnLoadFunc + exit.OnLoadArgs, u"");
    EXPECT_EQ(exit.OnUnloadFunc + exit.OnUnloadArgs, u"window.open" + Expected(u"exit").second);
}

TEST(PopupWindowTest, ChecksTheLinkThenTheWindow)
{
    PopupWindow window{.optWhenToAppear = WhenToAppear::OnHyperlink, .txtWindowName = u"  "};
    EXPECT_EQ(CheckPage(window, 0), (Complaint{u"Enter the hyperlink text below.", "txtLinkItem"}));
    window.optWhenToAppear = WhenToAppear::OnImage;
    const auto refuses = [&](int page, const char* control, Text words, Text& field,
                             TextView mend) {
        EXPECT_EQ(CheckPage(window, page), (Complaint{std::move(words), control}));
        field = mend;
    };
    refuses(0, "txtLinkItem", u"Enter the image filename below.", window.txtLinkItem, u" ");
    EXPECT_EQ(CheckPage(window, 0), std::nullopt);
    refuses(1, "txtWindowName", u"Enter a name for the PopUp Window.", window.txtWindowName,
            u" my window ");
    refuses(1, "txtWindowName",
            u"The window name cannot include spaces.  Please remove the space characters.",
            window.txtWindowName, u" mine ");
    refuses(1, "txtURL", u"Enter a URL for the PopUp Window Web page.", window.txtURL, u" ");
    refuses(1, "txtWidth", u"Enter the width (in pixels) of the PopUp Window.", window.txtWidth,
            u" ");
    refuses(1, "txtHeight", u"Enter the height (in pixels) of the PopUp Window.", window.txtHeight,
            u"x");
    EXPECT_EQ(CheckPage(window, 1), std::nullopt);
    EXPECT_NE(Find(Generate(window).BODYHTML, u"window.open(' ', ' mine ', 'width=,height=x,tool"),
              0u);
}

} // namespace
} // namespace orvane::testing
