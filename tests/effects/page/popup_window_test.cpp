#include "effects/page/popup_window.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

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
