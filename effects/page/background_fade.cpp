#include "effects/page/background_fade.h"

namespace orvane {

Look LookOf(const BackgroundFade& fade)
{
    const bool onArrival = fade.cboWhen != u"leaving";
    return {{.Control = "txtSeconds", .IsEnabled = onArrival},
            {.Control = "chkAndBack", .IsEnabled = onArrival}};
}

std::optional<Complaint> Check(const BackgroundFade& fade)
{
    if (auto complaint = CheckColor(fade.FirstColor, u"the beginning", "cmdFirstColor"))
        return complaint;
    if (auto complaint = CheckColor(fade.LastColor, u"the end", "cmdLastColor"))
        return complaint;
    return CheckNumbers(fade, 0);
}

} // namespace orvane
