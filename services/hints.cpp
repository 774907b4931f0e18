#include "services/hints.h"

#include "core/numbers.h"
#include "services/color.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr TextView lengthUnits[] = {u"",   u"px", u"pt", u"em", u"ex",
                                    u"in", u"cm", u"mm", u"pc", u"%"};

bool IsLength(TextView piece)
{
    const std::size_t end = piece.find_last_of(u"0123456789.");
    const std::size_t digits = end == TextView::npos ? 0 : end + 1;
    return IsNumeric(Left(piece, digits)) &&
           std::ranges::any_of(lengthUnits, [unit = piece.substr(digits)](TextView known) {
               return EqualIgnoringCase(unit, known);
           });
}

} // namespace

HintList& HintList::InScript(ControlName control, TextView value, TextView ends)
{
    const std::size_t place = value.find_first_of(ends);
    if (place == TextView::npos)
        return *this;
    return Say(control,
               value[place] == u'"'
                   ? u"A quotation mark (\") ends the text in the script, which then cannot run."
                   : u"An apostrophe (') ends the text in the script, which then cannot run.");
}

HintList& HintList::Number(ControlName control, TextView value)
{
    return value.empty() || IsNumeric(value) ? *this : Say(control, notANumber);
}

HintList& HintList::Seconds(ControlName control, TextView value, int most)
{
    if (!IsNumeric(value) || std::abs(Val(value)) <= most)
        return Number(control, value);
    return Say(control,
               Join({u"The page's text carries ", NumberToText(most), u" seconds at most."}));
}

HintList& HintList::Contrast(ControlName control, TextView color, TextView ground, double least)
{
    const auto above = WholeColor(color);
    const auto below = WholeColor(ground);
    const double contrast = above && below ? ContrastOf(*above, *below) : least;
    if (contrast >= least)
        return *this;
    // Rounded up, a contrast that is too low could read as one that is high enough.
    const double shown = std::floor(contrast * 100) / 100;
    return Say(control,
               Join({u"The contrast of these two colors is ", NumberToText(shown), u" to 1.  From ",
                     NumberToText(least), u" to 1 on, everybody can tell them apart well."}));
}

HintList& HintList::Say(ControlName control, TextView words)
{
    if (std::ranges::find(m_hints, control, &Hint::Control) == m_hints.end())
        m_hints.push_back({control, Text(words)});
    return *this;
}

TextView CountOf(TextView entry)
{
    return Trim(Left(entry, 2));
}

bool IsStyleLength(TextView value)
{
    value = Trim(value);
    while (!value.empty()) {
        const TextView piece = value.substr(0, value.find(u' '));
        if (!IsLength(piece))
            return false;
        value = Trim(value.substr(piece.size()));
    }
    return true;
}

} // namespace orvane
