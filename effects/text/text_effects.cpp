#include "effects/text/text_effects.h"

namespace orvane {

std::optional<Complaint> CheckPage(const TextEffects& effects, int page)
{
    if (page == 0 && TidyLines(effects.txtText).empty())
        return Complaint{u"Please enter the text that is to grow.", "txtText"};
    if (auto complaint = CheckNumbers(effects, page))
        return complaint;
    TextEffects tidied = effects;
    Tidy(tidied);
    if (page == 0 && tidied.txtFrom == tidied.txtTo)
        return Complaint{u"The text would stay as large as it is.  Please enter two different "
                         u"sizes.",
                         "txtTo"};
    return std::nullopt;
}

} // namespace orvane
