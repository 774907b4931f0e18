#pragma once

#include "core/dialogs.h"
#include "core/text.h"

#include <array>
#include <cstdint>
#include <optional>

namespace orvane {

/// A colour in the forms that page text needs.
class CColor
{
public:
    CColor();

    Text HexColor;             ///< six upper-case digits, red pair first, no "#"
    std::int32_t RGBColor = 0; ///< blue in bits 16-23, green in bits 8-15, red in bits 0-7
    std::int16_t Red = 0;      ///< 0 to 255, as are the other two
    std::int16_t Blue = 0;
    std::int16_t Green = 0;
    std::int16_t ColorDialogCancelled = 0; ///< -1 after SelectColor() was cancelled, else 0

    /// The table of web colours: sixteen names, then the six digits of each in the same order.
    std::array<TextView, 32> WebColors() const { return m_webColors; }

    /// Fills the three channels from six hexadecimal digits, in upper or lower case; every "#" is
    /// ignored. An empty text gives 192 for each; a missing or unknown digit counts as 0.
    void ConvertHexToRGB(TextView text);

    /// The six digits of a packed value. Existing pages rely on its padding: a value of three or
    /// five hexadecimal digits comes out shifted, so 0xABC gives "AB0000".
    Text ConvertToRGBHex(std::int32_t value) const;

    /// Lets the author pick a colour and fills `HexColor` and `RGBColor`; after Cancel they are
    /// empty and 0, and `ColorDialogCancelled` is -1.
    void SelectColor(Dialogs& dialogs);

private:
    static std::array<TextView, 32> InitWebColors();

    std::array<TextView, 32> m_webColors;
};

/// The ways in which pages and applets write a colour.
enum class ColorNotation
{
    Hash,        ///< "#FF8000"
    Channels,    ///< "255,128,0"
    RgbFunction, ///< "rgb(255,128,0)"
};

/// The text of a packed colour (see CColor::RGBColor), with the digits that
/// CColor::ConvertToRGBHex() gives.
Text ColorText(std::int32_t packed, ColorNotation notation);

/// The packed colour of a text in any of the notations; nothing for an empty text. Missing or
/// unreadable parts count as 0.
std::optional<std::int32_t> PackedColor(TextView text);

/// The packed colour of a text that is whole: "#FF8000", "#f80", or one of the sixteen names of
/// CColor::WebColors(); nothing for any other.
std::optional<std::int32_t> WholeColor(TextView text);

/// How far two packed colours differ in lightness, as the rules for readable pages count it: from 1
/// for one and the same to 21 for black and white.
double ContrastOf(std::int32_t color, std::int32_t other);

} // namespace orvane
