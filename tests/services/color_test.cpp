#include "services/color.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

using Channels = std::array<int, 3>; ///< red, green, blue

Channels ChannelsOf(TextView text)
{
    CColor color;
    color.ConvertHexToRGB(text);
    return {color.Red, color.Green, color.Blue};
}

TEST(ColorTest, ReadsChannelsFromAnyDigits)
{
    const std::vector<std::pair<TextView, Channels>> cases = {
        {u"#FF8000", {255, 128, 0}}, {u"ff8000", {255, 128, 0}}, {u"F#F#8000", {255, 128, 0}},
        {u"", {192, 192, 192}},      {u"##", {192, 192, 192}},   {u" ", {0, 0, 0}},
        {u"F0A", {240, 160, 0}},     {u"1234567", {18, 52, 86}}, {u"red", {14, 208, 0}},
        {u"0G-1٣9", {0, 1, 9}}};
    for (const auto& [digits, expected] : cases)
        EXPECT_EQ(ChannelsOf(digits), expected) << ToUtf8(digits);
}

TEST(ColorTest, GivesDigitsByThePaddingThatPagesAreMadeWith)
{
    const std::vector<std::pair<std::int32_t, std::string>> cases = {
        {0, "000000"},         {0xA, "0A0000"},     {255, "FF0000"},        {0xABC, "AB0000"},
        {0xABCD, "CDAB00"},    {0xABCDE, "CDAB00"}, {0xABCDEF, "EFCDAB"},   {16777215, "FFFFFF"},
        {0x1234567, "563412"}, {-2, "FFFFFF"},      {-0x00FEDCBB, "2301FF"}};
    for (const auto& [packed, digits] : cases) {
        CColor color;
        color.Red = 7;
        EXPECT_EQ(ToUtf8(color.ConvertToRGBHex(packed)), digits);
        EXPECT_EQ(color.Red, 7);
        FakeDialogs dialogs;
        dialogs.AnswerColor(packed);
        color.SelectColor(dialogs);
        EXPECT_EQ(ToUtf8(color.HexColor), digits);
        EXPECT_EQ(color.RGBColor, packed);
    }
}

TEST(ColorTest, ChannelsOfAPickedColorInheritThePadding)
{
    FakeDialogs dialogs;
    dialogs.AnswerColor(188 | 10 << 8);
    CColor color;
    color.SelectColor(dialogs);
    EXPECT_EQ(ChannelsOf(color.HexColor), (Channels{171, 0, 0}));
    EXPECT_EQ(ColorText(color.RGBColor, ColorNotation::Hash), u"#AB0000");
    EXPECT_EQ(ColorText(color.RGBColor, ColorNotation::Channels), u"171,0,0");
    EXPECT_EQ(ColorText(color.RGBColor, ColorNotation::RgbFunction), u"rgb(171,0,0)");
}

TEST(ColorTest, CancelIsFlaggedUntilTheNextCall)
{
    FakeDialogs dialogs;
    dialogs.AnswerColor(0xFF);
    dialogs.AnswerColor(std::nullopt);
    dialogs.AnswerColor(0);
    CColor color;
    color.SelectColor(dialogs);
    EXPECT_EQ(color.ColorDialogCancelled, 0);
    color.SelectColor(dialogs);
    EXPECT_EQ(color.ColorDialogCancelled, -1);
    EXPECT_EQ(color.HexColor, u"");
    EXPECT_EQ(color.RGBColor, 0);
    color.SelectColor(dialogs);
    EXPECT_EQ(color.ColorDialogCancelled, 0);
}

TEST(ColorTest, HoldsTheDigitsSixteenCellsBehindTheName)
{
    const auto colors = CColor().WebColors();
    const auto digitsOf = [&](TextView name) {
        const auto at = std::find(colors.begin(), colors.begin() + 16, name) - colors.begin();
        return ToUtf8(colors.at(static_cast<std::size_t>(at) + 16));
    };
    EXPECT_EQ(digitsOf(u"aqua"), "00FFFF");
    EXPECT_EQ(digitsOf(u"gray"), "808080");
    EXPECT_EQ(digitsOf(u"olive"), "808000");
    EXPECT_EQ(digitsOf(u"silver"), "C0C0C0");
    EXPECT_EQ(digitsOf(u"yellow"), "FFFF00");
}

TEST(ColorTest, PacksATextForTheScreen)
{
    EXPECT_EQ(PackedColor(u"#0102FF"), 0xFF0201);
    EXPECT_EQ(PackedColor(u"1,2,255"), 0xFF0201);
    EXPECT_EQ(PackedColor(u"rgb(1,2,255)"), 0xFF0201);
    EXPECT_EQ(PackedColor(u""), std::nullopt);
}

TEST(ColorTest, TellsHowWellTwoColorsDiffer)
{
    const std::tuple<TextView, TextView, double> cases[] = {{u"#777777", u"white", 4.478},
                                                            {u"#767676", u"#FfFfFf", 4.542},
                                                            {u"#000", u"#ffffff", 21},
                                                            {u"#ff0000", u"Blue", 2.149},
                                                            {u"#abc", u"#AABBCC", 1}};
    for (const auto& [color, other, contrast] : cases) {
        EXPECT_NEAR(ContrastOf(*WholeColor(color), *WholeColor(other)), contrast, 0.001);
        EXPECT_EQ(ContrastOf(*WholeColor(other), *WholeColor(color)),
                  ContrastOf(*WholeColor(color), *WholeColor(other)));
    }
    for (const TextView none :
         {u"", u"-", u"#", u"#12", u"#12345g", u"#1234567", u"teals", u"1,2,3"})
        EXPECT_EQ(WholeColor(none), std::nullopt) << ToUtf8(none);
}

} // namespace
} // namespace orvane::testing
