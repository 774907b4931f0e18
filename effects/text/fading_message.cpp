#include "effects/text/fading_message.h"

#include "core/numbers.h"
#include "reedit/applet_values.h"

namespace orvane {

namespace {

constexpr int lastOfTag = 30; ///< the highest number that a value of the applet has

/// The value of that number, whose key is one of two that the applet knows.
Text NumberedValue(const PastedTag& tag, TextView first, TextView second, int number)
{
    const auto value = [&](TextView key) {
        return TagValue(tag, Join({key, u".", NumberToText(number), u" VALUE="}));
    };
    const Text found = value(first);
    return found.empty() ? value(second) : found;
}

} // namespace

std::optional<Complaint> CheckPage(const FadingMessage& message, int page)
{
    return page == 0 ? CheckRows(message.lstMessages, "lstMessages") : CheckNumbers(message, page);
}

void ReadTag(FadingMessage& message, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    message.lstMessages.clear();
    for (int i = 0; i <= lastOfTag; ++i)
        message.lstMessages.push_back(
            {NumberedValue(tag, u"TEXT", u"MESSAGE", i), NumberedValue(tag, u"URL", u"LINK", i)});
    message.Look.cboFont = TagValue(tag, u"FONT VALUE=");
    message.cboAlign = ToLower(TagValue(tag, u"ALIGN="));
    message.txtWidth = TagValue(tag, u"WIDTH=");
    Tidy(message);
}

} // namespace orvane
