#include "effects/page/all_in_one_button.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(AllInOneButtonTest, CompletesTheAddressAndPutsTheRestInUnescaped)
{
    AllInOneButton button{.cboButtonAction = Text(buttonActions[0]),
                          .txtButtonText = u"«Call» \"é☃\"",
                          .txtURL = u"Www.example.com/it's «Text»"};
    EXPECT_EQ(Generate(button).BODYHTML,
              u"<form><input type=button value=\"«Call» \"é☃\"\" "
              u"onClick=\"LinkToLocation('http://Www.example.com/it's «Text»')\"></form>\r\n");
    button.cboButtonAction = buttonActions[3];
    EXPECT_NE(Find(Generate(button).BODYHTML, u"playSound('Www.example.com"), 0u);
}

TEST(AllInOneButtonTest, AsksForTheActionThenForWhatItNeedsThenForTheText)
{
    AllInOneButton button;
    for (const int page : {0, 1})
        EXPECT_EQ(CheckPage(button, page),
                  (Complaint{u"Please select an action for your button from the list below.",
                             "cboButtonAction"}));
    const Text bookmark =
        u"Please enter a BookmarkURL and the Bookmark Title in the input boxes below.";
    const Complaint noText{u"Please specify the text or image filename for your button.",
                           "txtButtonText"};
    const Complaint first[] = {
        {u"Please enter a URL to link to.", "txtURL"},
        noText,
        noText,
        {u"Please enter a sound file to be played when your button is pushed.", "txtURL"},
        {bookmark, "txtBookmarkURL"}};
    for (std::size_t action = 0; action < buttonActions.size(); ++action) {
        button.cboButtonAction = buttonActions[action];
        EXPECT_EQ(CheckPage(button, 0), std::nullopt);
        EXPECT_EQ(CheckPage(button, 1), first[action]);
    }
    button.txtBookmarkURL = u" ";
    EXPECT_EQ(CheckPage(button, 1), (Complaint{bookmark, "txtBookmarkTitle"}));
    button.txtBookmarkTitle = u" ";
    EXPECT_EQ(CheckPage(button, 1), noText);
}

} // namespace
} // namespace orvane::testing
