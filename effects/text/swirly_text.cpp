#include "effects/text/swirly_text.h"

#include "reedit/applet_values.h"

namespace orvane {

std::optional<Complaint> CheckPage(const SwirlyText& swirly, int page)
{
    if (page == 0 && TidyLines(swirly.txtText).empty())
        return Complaint{u"Please enter the text that is to swirl.", "txtText"};
    if (page == 0 && swirly.lstColors.size() < 3)
        return Complaint{u"Please choose three colors at least.", "lstColors"};
    return CheckNumbers(swirly, page);
}

void ReadTag(SwirlyText& swirly, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    swirly.txtText = TagValue(tag, u"TEXT VALUE=");
    swirly.Look.cboFont = TagValue(tag, u"FONT VALUE=");
    swirly.Look.cboFontSize = TagValue(tag, u"SIZE VALUE=");
    Tidy(swirly);
}

} // namespace orvane
