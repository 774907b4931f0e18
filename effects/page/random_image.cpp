#include "effects/page/random_image.h"

namespace orvane {

std::optional<Complaint> CheckPage(const RandomImage& random, int page)
{
    return page == 0 ? CheckPictures(random.lstPictures, "lstPictures", {.Least = 2})
                     : CheckNumbers(random, page);
}

} // namespace orvane
