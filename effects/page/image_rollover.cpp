#include "effects/page/image_rollover.h"

namespace orvane {

std::optional<Complaint> CheckPage(const ImageRollover& rollover, int page)
{
    if (page != 0)
        return CheckNumbers(rollover, page);
    ImageRollover tidied = rollover;
    Tidy(tidied);
    return CheckPictures(PicturesOf(tidied.lstTriggers), "lstTriggers");
}

} // namespace orvane
