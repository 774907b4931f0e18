#pragma once

#include "core/complaint.h"

#include <vector>

namespace orvane {

/// Words on a field's value that stop nothing; they are true as long as the value stays.
struct Hint
{
    ControlName Control;
    Text Words;
    bool operator==(const Hint&) const = default;
};

/// The least contrasts of a text with its ground, and of what is no text, at which nobody misses
/// them.
inline constexpr double textContrast = 4.5;
inline constexpr double shapeContrast = 3;

/// Collects the hints on the fields of an effect, in the order of the calls. Each field has one
/// hint at most, the first that fits its value; an empty value has none unless a comment says so.
class HintList
{
public:
    /// For a value that a script takes as it is: names the first of the characters `ends` in it,
    /// each a quotation mark or an apostrophe that ends the text there.
    HintList& InScript(ControlName control, TextView value, TextView ends);

    /// For a value that should be a number.
    HintList& Number(ControlName control, TextView value);

    /// For a number of seconds of which the page's text carries `most` at most.
    HintList& Seconds(ControlName control, TextView value, int most);

    /// For two colours of which one is shown on the other: the contrast between them, where that is
    /// below `least` to 1. Colours that are not known, such as those of the page, give no hint.
    HintList& Contrast(ControlName control, TextView color, TextView ground,
                       double least = textContrast);

    /// Gives these words for the field, whatever its value is.
    HintList& Say(ControlName control, TextView words);

    std::vector<Hint> Hints() const { return m_hints; }

private:
    std::vector<Hint> m_hints;
};

inline constexpr TextView notANumber = u"This is not a number.";

/// Both characters that end a text of a script inside an attribute of a page.
inline constexpr TextView bothQuotes = u"\"'";

/// The seconds that a timer of a browser or an applet can wait, whose milliseconds have 32 bits.
inline constexpr int longestTimer = 2147483;

/// The number at the front of an entry such as "10 times", which is all that an applet's tag takes.
TextView CountOf(TextView entry);

/// Whether a style takes the value as a length: one or more numbers with or without a unit.
bool IsStyleLength(TextView value);

} // namespace orvane
