#include "effects/page/personalize.h"

namespace orvane {

Look LookOf(const Personalize& personal)
{
    return {{.Control = "cboDateStyle", .IsEnabled = personal.chkLastVisit}};
}

std::optional<Complaint> CheckPage(const Personalize& personal, int page)
{
    return CheckNumbers(personal, page);
}

std::vector<Hint> HintsOf(const Personalize& personal)
{
    HintList hints = BlockHints(personal);
    if (!OneLine(personal.txtGreeting).empty() &&
        Find(personal.txtGreeting, Personalize::Name) == 0)
        hints.Say("txtGreeting", Join({u"The greeting does not say the name, which comes where ",
                                       Personalize::Name, u" stands."}));
    return hints.Hints();
}

} // namespace orvane
