#include "effects/page/popup_alert.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

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
} // namespace orvane::testing
