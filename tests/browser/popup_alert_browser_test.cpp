#include "effects/page/popup_alert.h"
#include "insertion/new_page.h"
#include "tests/support/qt_browser_page.h"

namespace orvane::testing {
namespace {

struct BoxCase
{
    PageBox::Kind Shape;
    PageBoxReply Reply;
    const char* Written; ///< what the visitor reads in the page
};

TEST(PopupAlertBrowserTest, EachBoxComesAndItsAnswerIsWritten)
{
    const BoxCase cases[] = {{PageBox::Kind::Alert, {.Accepted = true}, ""},
                             {PageBox::Kind::Confirm, {.Accepted = true}, "true"},
                             {PageBox::Kind::Confirm, {.Accepted = false}, "false"},
                             {PageBox::Kind::Prompt, {.Accepted = true, .Entered = u"Zoë"}, "Zoë"},
                             {PageBox::Kind::Prompt, {.Accepted = false}, ""}};
    for (const auto& [shape, reply, written] : cases) {
        BrowserPage page;
        page.Dialogs.AnswerBox(reply);
        PopupAlert alert{.cmboAlertType = Text(alertTypes[static_cast<std::size_t>(shape)].Item),
                         .txtAlertText = u"Hello,\r\nyou!"};
        Tidy(alert);
        page.Load(NewPageBytes(Finish(Generate(alert))));
        page.WaitUntil("document.readyState === 'complete'");
        ASSERT_EQ(page.Dialogs.Boxes.size(), 1u);
        EXPECT_EQ(page.Dialogs.Boxes[0].Shape, shape);
        EXPECT_EQ(page.Dialogs.Boxes[0].Words, u"Hello,\nyou!");
        EXPECT_EQ(page.Value("document.body.innerText.trim()").toString().toStdString(), written);
    }
}

} // namespace
} // namespace orvane::testing
