#include "effects/text/smooth_scroll.h"

#include "reedit/applet_values.h"

namespace orvane {

std::optional<Complaint> CheckPage(const SmoothScroll& scroll, int page)
{
    return page == 0 ? CheckRows(scroll.lstMessages, "lstMessages") : CheckNumbers(scroll, page);
}

void ReadTag(SmoothScroll& scroll, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    scroll.lstMessages = {{TagValue(tag, u"MESSAGE VALUE=")}};
    if (Find(tag.AppletTextAfterCODE, u"LTR") != 0)
        scroll.cboDirection = u"right";
    scroll.Look.cboFont = TagValue(tag, u"FONT VALUE=");
    scroll.Look.cboFontSize = TagValue(tag, u"SIZE VALUE=");
    scroll.Look.TextColor = TagColor(tag, u"TEXTCOLOR VALUE=");
    scroll.BackColor = TagColor(tag, u"BGCOLOR VALUE=");
    scroll.txtWidth = TagValue(tag, u"WIDTH=");
    scroll.txtHeight = TagValue(tag, u"HEIGHT=");
    SetFromAttribute(NumberField("sldrSpeed", 5, 500), scroll.sldrSpeed,
                     TagValue(tag, u"SPEED VALUE="));
    Tidy(scroll);
}

} // namespace orvane
