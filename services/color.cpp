#include "services/color.h"

#include "core/numbers.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr TextView hexDigits = u"0123456789ABCDEF";

/// Upper-case hexadecimal without leading zeros; a negative value has its eight digits.
Text Hexadecimal(std::int32_t value)
{
    Text digits;
    auto rest = static_cast<std::uint32_t>(value);
    do {
        digits.push_back(hexDigits[rest % 16]);
        rest /= 16;
    } while (rest != 0);
    std::reverse(digits.begin(), digits.end());
    return digits;
}

/// The digits from which the pairs are taken. Stays as it is: three or five digits become seven,
/// and colours of earlier pages came out that way.
Text Padded(const Text& digits)
{
    if (digits.size() < 2)
        return u"00000" + digits;
    if (digits.size() < 4)
        return u"0000" + digits;
    if (digits.size() < 6)
        return u"00" + digits;
    return digits;
}

/// The value of the digit at a position counted from 1; 0 behind the end and for any other
/// character.
int DigitAt(TextView digits, std::size_t position)
{
    const TextView digit = Mid(digits, position, 1);
    const std::size_t value = digit.empty() ? TextView::npos : hexDigits.find(digit.front());
    return value == TextView::npos ? 0 : static_cast<int>(value);
}

std::int16_t ChannelAt(TextView digits, std::size_t position)
{
    return static_cast<std::int16_t>(16 * DigitAt(digits, position) +
                                     DigitAt(digits, position + 1));
}

/// The light that a channel of 0 to 255 gives, from 0 to 1.
double LightOf(std::int32_t channel)
{
    const double part = (channel & 0xFF) / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double LuminanceOf(std::int32_t color)
{
    return 0.2126 * LightOf(color) + 0.7152 * LightOf(color >> 8) + 0.0722 * LightOf(color >> 16);
}

} // namespace

CColor::CColor() : m_webColors(InitWebColors()) {}

std::array<TextView, 32> CColor::InitWebColors()
{
    return {u"aqua",   u"black",  u"blue",   u"fuchsia", u"gray",   u"green",  u"lime",
            u"maroon", u"navy",   u"olive",  u"purple",  u"red",    u"silver", u"teal",
            u"white",  u"yellow", u"00FFFF", u"000000",  u"0000FF", u"FF00FF", u"808080",
            u"008000", u"00FF00", u"800000", u"000080",  u"808000", u"800080", u"FF0000",
            u"C0C0C0", u"008080", u"FFFFFF", u"FFFF00"};
}

void CColor::ConvertHexToRGB(TextView text)
{
    const Text digits = ToUpper(ReplaceAll(text, u"#", u""));
    if (digits.empty()) {
        Red = Green = Blue = 192;
        return;
    }
    Red = ChannelAt(digits, 1);
    Green = ChannelAt(digits, 3);
    Blue = ChannelAt(digits, 5);
}

Text CColor::ConvertToRGBHex(std::int32_t value) const
{
    const Text digits = Padded(Hexadecimal(value));
    return Join({Mid(digits, 5, 2), Mid(digits, 3, 2), Mid(digits, 1, 2)});
}

void CColor::SelectColor(Dialogs& dialogs)
{
    ColorDialogCancelled = 0;
    HexColor.clear();
    RGBColor = 0;
    const auto picked = dialogs.PickColor();
    if (!picked) {
        ColorDialogCancelled = -1;
        return;
    }
    RGBColor = *picked;
    HexColor = ConvertToRGBHex(RGBColor);
}

Text ColorText(std::int32_t packed, ColorNotation notation)
{
    CColor color;
    const Text digits = color.ConvertToRGBHex(packed);
    if (notation == ColorNotation::Hash)
        return u"#" + digits;
    color.ConvertHexToRGB(digits);
    const Text channels = Join(
        {NumberToText(color.Red), u",", NumberToText(color.Green), u",", NumberToText(color.Blue)});
    return notation == ColorNotation::Channels ? channels : Join({u"rgb(", channels, u")"});
}

std::optional<std::int32_t> PackedColor(TextView text)
{
    if (text.empty())
        return std::nullopt;
    CColor color;
    if (text.find(u',') == TextView::npos) {
        color.ConvertHexToRGB(text);
        return color.Blue << 16 | color.Green << 8 | color.Red;
    }
    if (const std::size_t bracket = text.find(u'('); bracket != TextView::npos)
        text.remove_prefix(bracket + 1);
    std::int32_t packed = 0;
    for (const int shift : {0, 8, 16}) {
        const double channel = std::clamp(Val(TakeUntil(text, u',')), 0.0, 255.0);
        packed |= static_cast<std::int32_t>(channel) << shift;
    }
    return packed;
}

std::optional<std::int32_t> WholeColor(TextView text)
{
    if (text.starts_with(u'#')) {
        const Text digits = ToUpper(text.substr(1));
        if (digits.find_first_not_of(hexDigits) != Text::npos)
            return std::nullopt;
        if (digits.size() == 3)
            return PackedColor(
                Text{digits[0], digits[0], digits[1], digits[1], digits[2], digits[2]});
        return digits.size() == 6 ? PackedColor(digits) : std::nullopt;
    }
    const auto colors = CColor().WebColors();
    constexpr std::size_t names = 16;
    for (std::size_t i = 0; i < names; ++i)
        if (EqualIgnoringCase(text, colors[i]))
            return PackedColor(colors[names + i]);
    return std::nullopt;
}

double ContrastOf(std::int32_t color, std::int32_t other)
{
    constexpr double flare = 0.05; // that a screen gives even where it is black
    const auto [less, more] = std::minmax({LuminanceOf(color), LuminanceOf(other)});
    return (more + flare) / (less + flare);
}

} // namespace orvane
