#include "effects/page/popup_alert.h"

#include "core/template.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr Template body(uR"page(
<SCRIPT LANGUAGE="JavaScript">
«CreditBanner»
<!--
«AlertLines»
//-->
</SCRIPT>

)page");

// Stays as it is: this line alone has no semicolon.
constexpr Template simpleLines(uR"page(    window.alert("«AlertText»"))page");

constexpr Template confirmLines(uR"page(
    res = window.confirm("«AlertText»");
    document.writeln(res);)page");

constexpr Template promptLines(uR"page(
    res = window.prompt("«AlertText»","");
    if (res != null) {document.writeln(res)};)page");

TemplateView LinesOf(TextView type)
{
    if (type == alertTypes[2].Item)
        return promptLines;
    if (type == alertTypes[1].Item)
        return confirmLines;
    return simpleLines;
}

} // namespace

Look LookOf(const PopupAlert& alert)
{
    const auto type = std::ranges::find(alertTypes, alert.cmboAlertType, &AlertType::Item);
    return {{.Control = "lblAlertTypeDesc",
             .Words = type == alertTypes.end() ? TextView() : type->Description}};
}

std::optional<Complaint> Check(const PopupAlert& alert)
{
    if (alert.cmboAlertType.empty())
        return Complaint{u"Select a PopUp Alert box type.", "cmboAlertType"};
    if (alert.txtAlertText.empty())
        return Complaint{u"Enter the text you wish to appear in the PopUp Alert box.",
                         "txtAlertText"};
    return std::nullopt;
}

void Tidy(PopupAlert& alert)
{
    alert.txtAlertText = ReplaceAll(alert.txtAlertText, lineEnd, u"\\n");
}

std::vector<Hint> HintsOf(const PopupAlert& alert)
{
    return HintList().InScript("txtAlertText", alert.txtAlertText, u"\"").Hints();
}

EffectPayload Generate(const PopupAlert& alert)
{
    // The text goes in as it is: a quote in it ends the string, and always has.
    const Text lines = Fill(LinesOf(alert.cmboAlertType), {{u"AlertText", alert.txtAlertText}});
    return {
        .Kind = EffectKind::PopupAlert,
        .BODYHTML = Fill(body, {{u"CreditBanner", CreditBanner}, {u"AlertLines", lines}}),
    };
}

} // namespace orvane
