#include "effects/page/earthquake.h"

#include "core/numbers.h"

namespace orvane {

namespace {

/// The least number of seconds from one quake to the next.
constexpr double calmSeconds = 5;

bool ComesTooSoon(const Earthquake& quake)
{
    const double seconds = Val(OneLine(quake.txtAgainAfter));
    return seconds > 0 && seconds < calmSeconds;
}

} // namespace

void Tidy(Earthquake& quake)
{
    TidyBlock(quake);
    if (ComesTooSoon(quake))
        quake.txtAgainAfter = NumberToText(calmSeconds);
}

std::vector<Hint> HintsOf(const Earthquake& quake)
{
    HintList hints = BlockHints(quake);
    if (ComesTooSoon(quake) && !Check(quake))
        hints.Say("txtAgainAfter", Join({u"The page takes ", NumberToText(calmSeconds),
                                         u": more quakes can harm those who look at it."}));
    return hints.Hints();
}

std::optional<Complaint> Check(const Earthquake& quake)
{
    return CheckNumbers(quake, 0);
}

} // namespace orvane
