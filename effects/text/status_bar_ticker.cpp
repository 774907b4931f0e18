#include "effects/text/status_bar_ticker.h"

#include "core/template.h"
#include "reedit/applet_values.h"

namespace orvane {

namespace {

// Line by line as the pages of earlier versions have it, the deeper indent of one line included.
constexpr Template head(uR"page(
<SCRIPT LANGUAGE="JavaScript">
«CreditBanner»
<!--
function scrollit_r2l(seed)
{
        var msg  ="«StatusText»";
        var out = " ";
        var c   = 1;

        if (seed > 100) {
                seed--;
                var cmd="scrollit_r2l(" + seed + ")";
                timerTwo=window.setTimeout(cmd,100);
        }
        else if (seed <= 100 && seed > 0) {
                for (c=0 ; c < seed ; c++) {
                        out+=" ";
                }
                out+=msg;
                seed--;
                var cmd="scrollit_r2l(" + seed + ")";
                    window.status=out;
                timerTwo=window.setTimeout(cmd,100);
        }
        else if (seed <= 0) {
                if (-seed < msg.length) {
                        out+=msg.substring(-seed,msg.length);
                        seed--;
                        var cmd="scrollit_r2l(" + seed + ")";
                        window.status=out;
                        timerTwo=window.setTimeout(cmd,100);
                }
                else {
                        window.status=" ";
                        timerTwo=window.setTimeout("scrollit_r2l(100)",75);
                }
        }
}
//-->
</SCRIPT>


)page");

} // namespace

std::optional<Complaint> Check(const StatusBarTicker& ticker)
{
    if (ticker.txtStatusBarText.empty())
        return Complaint{u"Please enter the Status Bar scrolling text.", "txtStatusBarText"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const StatusBarTicker& ticker)
{
    return HintList().InScript("txtStatusBarText", ticker.txtStatusBarText, u"\"").Hints();
}

EffectPayload Generate(const StatusBarTicker& ticker)
{
    // The text goes in as it is: a quote in it breaks the script, and always has.
    return {
        .Kind = EffectKind::StatusBarTicker,
        .HEADHTML =
            Fill(head, {{u"CreditBanner", CreditBanner}, {u"StatusText", ticker.txtStatusBarText}}),
        .OnLoadFunc = u"scrollit_r2l",
        .OnLoadArgs = u"(99)",
    };
}

void ReadTag(StatusBarTicker& ticker, const PastedTag& tag)
{
    ticker.txtStatusBarText = TagValue(tag, u"var msg  =");
}

} // namespace orvane
