#pragma once

#include "core/dialogs.h"
#include "core/text.h"

#include <array>
#include <cstdint>
#include <optional>

namespace orvane {

/// A colour in the forms that page text needs; made for one click and dropped again.
class CColor
{
public:
    CColor();

    Text HexColor;             ///< six upper-case digits, red pair first, no "#"
    std::int32_t RGBColor = 0; ///< blue in bits 16-23, green in bits 8-15, red in bits 0-7
    std::int16_t Red = 0;      ///< 0 to 255, as are the other two
    std::int16_t Blue = 0;
    std::int16_t Green = 0;
    std::int16_t ColorDialogCancelled = 0; ///< whether SelectColor() was: 0 for no, -1 for yes

    /// A copy of the table of web colours: sixteen names, then the digits of each.
    std::array<TextView, 32> WebColors() const { return m_webColors; }

    /// Fills the three channels from six hexadecimal digits, in any case and with any "#" passed
    /// over: an empty text gives 192 each, a missing or unknown digit counts 0.
    void ConvertHexToRGB(TextView text);

    /// The six digits of a packed value. Pages are made with its padding: a value of three or five
    /// hexadecimal digits comes out shifted, so 0xABC gives "AB0000".
    Text ConvertToRGBHex(std::int32_t value) const;

    /// Asks for a colour and fills `HexColor` and `RGBColor`; after Cancel they are empty and 0,
    /// and `ColorDialogCancelled` tells.
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

/// A packed colour, as CColor::RGBColor is, in the wanted notation.
Text ColorText(std::int32_t packed, ColorNotation notation);

/// The packed colour of a text in any of the notations; nothing for an empty text.
std::optional<std::int32_t> PackedColor(TextView text);

} // namespace orvane
