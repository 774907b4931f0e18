#include "effects/text/smooth_scroll.h"

namespace orvane {

std::optional<Complaint> CheckPage(const SmoothScroll& scroll, int page)
{
    return page == 0 ? CheckRows(scroll.lstMessages, "lstMessages") : CheckNumbers(scroll, page);
}

} // namespace orvane
