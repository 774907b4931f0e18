#pragma once

#include "core/fault.h"
#include "core/text.h"

#include <concepts>
#include <cstdint>

namespace orvane {

/// The number at the start of a text, such as 12.5 of "12.5 px". Blanks, tabs and line ends are
/// left out wherever they stand; reading stops at the first character that cannot belong to the
/// number. 0 when the text starts with no number.
double Val(TextView text);

/// Whether the whole text, apart from blanks around it, is one number.
bool IsNumeric(TextView text);

/// The whole text as a 16-bit number, halves rounded to even; TypeMismatch when it is no number,
/// Overflow when it lies outside -32768 to 32767.
Outcome<std::int16_t> ToInteger16(TextView text);

/// What a number field holds after a press of its up or down button: Val(`text`), or the whole part
/// of it when `step` is whole, plus `step`, kept within `lowest` to `highest`.
double StepNumber(TextView text, double step, double lowest, double highest);

/// The number with at most 15 significant digits and no trailing zeros, such as "0.5".
Text NumberToText(double number);

/// A whole number in decimal.
template <std::integral Number>
Text NumberToText(Number number)
{
    return NumberToText(static_cast<double>(number));
}

} // namespace orvane
