#include "effects/page/banner_wizard.h"

#include "core/numbers.h"
#include "reedit/applet_values.h"
#include "services/block_pictures.h"

namespace orvane {

std::optional<Complaint> CheckPage(const BannerWizard& banner, int page)
{
    return page == 0 ? CheckPictures(banner.lstPictures, "lstPictures", {.Least = 2})
                     : CheckNumbers(banner, page);
}

void ReadTag(BannerWizard& banner, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    const auto value = [&](TextView name, int number = 0) {
        return NumberedTagValue(tag, name, name, number);
    };
    banner = {};
    for (const Text& image : TagImages(tag)) {
        const Text link = value(u"URL", static_cast<int>(banner.lstPictures.size()));
        banner.lstPictures.push_back(PictureNamed(image));
        if (link != u"null")
            banner.lstPictures.back().Link = link;
    }
    banner.cboTarget = value(u"TARGET");
    // Less than nothing waits for a click or the mouse.
    if (const double pause = Val(value(u"PAUSE")); pause > 0)
        banner.txtSeconds = NumberToText(pause / 1000);
    banner.Size.txtWidth = TagValue(tag, u"WIDTH=");
    banner.Size.txtHeight = TagValue(tag, u"HEIGHT=");
    Tidy(banner);
}

} // namespace orvane
