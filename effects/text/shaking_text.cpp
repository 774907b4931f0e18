#include "effects/text/shaking_text.h"

namespace orvane {

std::optional<Complaint> CheckPage(const ShakingText& shaking, int page)
{
    if (page == 0 && TidyLines(shaking.txtText).empty())
        return Complaint{u"Please enter the text that is to shake.", "txtText"};
    return CheckNumbers(shaking, page);
}

} // namespace orvane
