#include "effects/page/image_scroller.h"

namespace orvane {

std::optional<Complaint> CheckPage(const ImageScroller& scroller, int page)
{
    return page == 0 ? CheckPictures(scroller.lstPictures, "lstPictures")
                     : CheckNumbers(scroller, page);
}

} // namespace orvane
