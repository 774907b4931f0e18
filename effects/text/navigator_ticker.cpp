#include "effects/text/navigator_ticker.h"

#include "reedit/applet_values.h"

namespace orvane {

std::optional<Complaint> CheckPage(const NavigatorTicker& ticker, int page)
{
    return page == 0 ? CheckRows(ticker.lstMessages, "lstMessages") : CheckNumbers(ticker, page);
}

std::vector<Hint> HintsOf(const NavigatorTicker& ticker)
{
    HintList hints = BlockHints(ticker);
    for (const ColoredRow& row : ticker.lstMessages)
        hints.Contrast("cmdBackColor", row.Color, ticker.BackColor);
    return hints.Hints();
}

void ReadTag(NavigatorTicker& ticker, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    const Text linkColor = TagColor(tag, u"LINKCO VALUE=");
    ticker.lstMessages.clear();
    for (int i = 0; i <= lastNumberOfTag; ++i) {
        const Text link = NumberedTagValue(tag, u"URL", u"LINK", i);
        ticker.lstMessages.push_back({NumberedTagValue(tag, u"TEXT", u"MESSAGE", i), link,
                                      link.empty() ? Text() : linkColor});
    }
    SetFromAttribute(NumberField("sldrSpeed", 5, 500), ticker.sldrSpeed,
                     TagValue(tag, u"SPEED VALUE="));
    ticker.txtWidth = TagValue(tag, u"WIDTH=");
    ticker.Look.TextColor = TagColor(tag, u"TXTCO VALUE=");
    ticker.BackColor = TagColor(tag, u"BGCO VALUE=");
    Tidy(ticker);
}

} // namespace orvane
