#include "effects/page/popup_alert.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ExpectedText;
using testing::ExpectSameText;

TEST(PopupAlertTest, WritesEachTypeIntoTheBody)
{
    const std::array<const char16_t*, 3> texts = {u"Welcome to my page!\r\nEnjoy your stay.",
                                                  u"Do you like it?", u"What is your name?"};
    const std::array files = {"popup_alert_simple.html", "popup_alert_confirm.html",
                              "popup_alert_prompt.html"};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        PopupAlert alert{.cmboAlertType = Text(alertTypes[i].Item), .txtAlertText = texts[i]};
        Tidy(alert);
        const EffectPayload payload = Generate(alert);
        ExpectSameText(ExpectedText(files[i]), payload.BODYHTML);
        EXPECT_EQ(payload, (EffectPayload{.Kind = EffectKind::PopupAlert,
                                          .BODYHTML = ExpectedText(files[i])}));
    }
}

TEST(PopupAlertTest, TurnsLineEndsOnceAndPutsTheRestInUnescaped)
{
    PopupAlert alert{.txtAlertText = u"\"\\\r\nа«AlertText»'\n"};
    const Text turned = u"\"\\\\nа«AlertText»'\n";
    for (int pass = 0; pass < 2; ++pass) {
        Tidy(alert);
        EXPECT_EQ(alert.txtAlertText, turned);
    }
    EXPECT_NE(Find(Generate(alert).BODYHTML, Join({u"alert(\"", turned, u"\")\r\n"})), 0u);
}

TEST(PopupAlertTest, AsksForTheTypeBeforeTheText)
{
    PopupAlert alert{.cmboAlertType = u""};
    EXPECT_EQ(Check(alert), (Complaint{u"Select a PopUp Alert box type.", "cmboAlertType"}));
    alert.cmboAlertType = alertTypes[2].Item;
    EXPECT_EQ(Check(alert), (Complaint{u"Enter the text you wish to appear in the PopUp Alert box.",
                                       "txtAlertText"}));
    alert.txtAlertText = u" ";
    EXPECT_EQ(Check(alert), std::nullopt);
}

} // namespace
} // namespace orvane
