#include "effects/text/fading_message.h"

#include "reedit/applet_values.h"

namespace orvane {

std::optional<Complaint> CheckPage(const FadingMessage& message, int page)
{
    return page == 0 ? CheckRows(message.lstMessages, "lstMessages") : CheckNumbers(message, page);
}

void ReadTag(FadingMessage& message, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    message.lstMessages.clear();
    for (int i = 0; i <= lastNumberOfTag; ++i)
        message.lstMessages.push_back({NumberedTagValue(tag, u"TEXT", u"MESSAGE", i),
                                       NumberedTagValue(tag, u"URL", u"LINK", i)});
    message.Look.cboFont = TagValue(tag, u"FONT VALUE=");
    message.cboAlign = ToLower(TagValue(tag, u"ALIGN="));
    message.txtWidth = TagValue(tag, u"WIDTH=");
    Tidy(message);
}

} // namespace orvane
