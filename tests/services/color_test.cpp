#include "services/color.h"

#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"

namespace orvane {
namespace {

using testing::FakeDialogs;

using Channels = std::array<int, 3>; ///< red, green, blue

Channels ChannelsOf(TextView text)
{
    CColor color;
    color.ConvertHexToRGB(text);
    return {color.Red, color.Green, color.Blue};
}

struct HexCase
{
    TextView Digits;
    Channels Expected;
};

class ColorTextTest : public ::testing::TestWithParam<HexCase>
{
};

TEST_P(ColorTextTest, GivesItsChannels)
{
    EXPECT_EQ(ChannelsOf(GetParam().Digits), GetParam().Expected) << ToUtf8(GetParam().Digits);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ColorTextTest,
    ::testing::Values(HexCase{u"#FF8000", {255, 128, 0}}, HexCase{u"ff8000", {255, 128, 0}},
                      HexCase{u"F#F#8000", {255, 128, 0}}, HexCase{u"", {192, 192, 192}},
                      HexCase{u"##", {192, 192, 192}}, HexCase{u" ", {0, 0, 0}},
                      HexCase{u"F0A", {240, 160, 0}}, HexCase{u"1234567", {18, 52, 86}},
                      HexCase{u"red", {14, 208, 0}}, HexCase{u"0G-1٣9", {0, 1, 9}}));

struct PackedCase
{
    std::int32_t Packed;
    TextView Digits;
};

class PackedColorTest : public ::testing::TestWithParam<PackedCase>
{
};

TEST_P(PackedColorTest, GivesDigitsByThePaddingThatPagesAreMadeWith)
{
    CColor color;
    color.Red = 7;
    EXPECT_EQ(ToUtf8(color.ConvertToRGBHex(GetParam().Packed)), ToUtf8(GetParam().Digits));
    EXPECT_EQ(color.Red, 7);

    FakeDialogs dialogs;
    dialogs.AnswerColor(GetParam().Packed);
    color.SelectColor(dialogs);
    EXPECT_EQ(ToUtf8(color.HexColor), ToUtf8(GetParam().Digits));
    EXPECT_EQ(color.RGBColor, GetParam().Packed);
}

INSTANTIATE_TEST_SUITE_P(
    Values, PackedColorTest,
    ::testing::Values(PackedCase{0, u"000000"}, PackedCase{0xA, u"0A0000"},
                      PackedCase{255, u"FF0000"}, PackedCase{0xABC, u"AB0000"},
                      PackedCase{0xABCD, u"CDAB00"}, PackedCase{0xABCDE, u"CDAB00"},
                      PackedCase{0xABCDEF, u"EFCDAB"}, PackedCase{16777215, u"FFFFFF"},
                      PackedCase{0x1234567, u"563412"}, PackedCase{-2, u"FFFFFF"},
                      PackedCase{-0x00FEDCBB, u"2301FF"}));

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

} // namespace
} // namespace orvane
