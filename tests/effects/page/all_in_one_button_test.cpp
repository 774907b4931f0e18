#include "effects/page/all_in_one_button.h"

#include "core/numbers.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// The button of the expected texts.
AllInOneButton Sample(ButtonAction action, ButtonType type)
{
    AllInOneButton button{
        .cboButtonAction = Text(buttonActions.at(static_cast<std::size_t>(action))),
        .optButtonType = type,
        .txtButtonText = type == ButtonType::Image ? u"go.gif" : u"Go on",
        .txtBookmarkURL = u"http://www.example.com/",
        .txtBookmarkTitle = u"My page",
    };
    if (action == ButtonAction::Link)
        button.txtURL = u"http://www.example.com/next.html";
    if (action == ButtonAction::Sound)
        button.txtURL = u"ding.wav";
    return button;
}

TEST(AllInOneButtonTest, WritesEachActionInEachType)
{
    const char* const heads[] = {"link", "print", "close", "sound", "favorites"};
    Text lines;
    for (std::size_t action = 0; action < buttonActions.size(); ++action) {
        for (const ButtonType type :
             {ButtonType::Button, ButtonType::Hyperlink, ButtonType::Image}) {
            const EffectPayload payload = Generate(Sample(static_cast<ButtonAction>(action), type));
            Text body = payload.BODYHTML;
            EXPECT_TRUE(body.ends_with(lineEnd));
            lines += Join({buttonActions[action], u"\t", NumberToText(static_cast<int>(type)),
                           u"\t", ReplaceAll(body.erase(body.size() - 2), lineEnd, u"\t"), u"\n"});
            EXPECT_EQ(payload,
                      (EffectPayload{.Kind = EffectKind::AllInOneButton,
                                     .HEADHTML = ExpectedText(std::string("all_in_one_button_") +
                                                              heads[action] + "_head.html"),
                                     .BODYHTML = payload.BODYHTML}));
        }
    }
    ExpectSameText(ExpectedText("all_in_one_button_lines.tsv"), lines);
}

TEST(AllInOneButtonTest, CompletesTheAddressAndPutsTheRestInUnescaped)
{
    AllInOneButton button = Sample(ButtonAction::Link, ButtonType::Button);
    button.txtURL = u"Www.example.com/it's «Text»";
    button.txtButtonText = u"«Call» \"é☃\"";
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
