#include "effects/text/flying_text.h"

namespace orvane {

std::optional<Complaint> CheckPage(const FlyingText& flying, int page)
{
    if (page == 0 && TidyLines(flying.txtText).empty())
        return Complaint{u"Please enter the text that is to fly.", "txtText"};
    return CheckNumbers(flying, page);
}

} // namespace orvane
