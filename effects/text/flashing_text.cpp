#include "effects/text/flashing_text.h"

namespace orvane {

std::optional<Complaint> CheckPage(const FlashingText& flashing, int page)
{
    if (page == 0 && TidyLines(flashing.txtText).empty())
        return Complaint{u"Please enter the text that is to flash.", "txtText"};
    return CheckNumbers(flashing, page);
}

} // namespace orvane
