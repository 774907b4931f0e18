#include "effects/page/falling_images.h"

#include "core/numbers.h"

namespace orvane {

std::optional<Complaint> CheckPage(const FallingImages& falling, int page)
{
    if (page == 0)
        return CheckPictures(falling.lstPictures, "lstPictures",
                             {.Most = FallingImages::MostPictures});
    if (auto complaint = CheckNumbers(falling, page))
        return complaint;
    FallingImages tidied = falling;
    Tidy(tidied);
    if (Val(tidied.txtSmallest) > Val(tidied.txtLargest))
        return Complaint{u"The smallest pictures are larger than the largest.  Please enter other "
                         u"widths.",
                         "txtSmallest"};
    return std::nullopt;
}

} // namespace orvane
