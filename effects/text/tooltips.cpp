#include "effects/text/tooltips.h"

#include "core/numbers.h"
#include "core/template.h"
#include "services/font_fields.h"
#include "services/recorded_files.h"

namespace orvane {

namespace {

constexpr Template head(uR"page(
<script>
var box;

function showBox(e, boxID) {
   var Ypos;
   var Xpos;
   if (document.all)  {
       box = eval('document.all.' + boxID);
       Xpos = window.event.x;
       Ypos = window.event.y;
   }
   else if (document.getElementById)  {
       box = document.getElementById(boxID);
       Xpos = e.clientX;
       Ypos = e.clientY;
   }

   box.style.visibility = 'visible';
   box.style.left= Xpos + 10 + 'px';
   box.style.top= Ypos «TopOffset» + 'px';
}

function hideBox(){
   box.style.visibility = 'hidden';
}
</script>

<style type='text/css'>
   .tooltip {font-family:verdana;font-size: 11px;padding: 0px;}
</style>)page");

// Stays as it is: every tooltip's box bears the same name, so a page shows only its first one.
constexpr Template body(
    uR"page(<div id='box1' class='tooltip' style='position:absolute; width:«Width»; height:«Height»; background-color:«BGColor»; border:1px solid black; visibility:hidden; text-align:left;«Border3D»'>«TitleDiv»<div style='padding:3px«StyleCss»;font-family:«Font»; font-size:«Size»pt; color:«TextColor»'>«TooltipText»</div></div>«HoverObject»)page");

constexpr Template titleDiv(
    uR"page(<div style='border-bottom:1px black solid; font-weight:bold; padding-left:2px; padding-right:2px; text-align:«Align»'>«Title»</div>)page");

constexpr Template hoverText(
    uR"page(<span onmouseMOVE='showBox(event, "box1");' onmouseout='hideBox()'>«MainText»</span>)page");

constexpr Template hoverImage(
    uR"page(<img src='«ImageName»' onmouseMOVE='showBox(event, "box1");' onmouseout='hideBox()'>)page");

constexpr TextView border3D = u"border-bottom:3px solid black;border-right:3px solid black;";

Text TitleDiv(const Tooltips& tooltip)
{
    if (tooltip.txtTitleText.empty())
        return {};
    return Fill(titleDiv, {{u"Align", tooltip.cboTitleAlign}, {u"Title", tooltip.txtTitleText}});
}

/// The text or image under the mouse; an image is recorded as a file to copy.
Text HoverElement(const Tooltips& tooltip, RequiredFiles& files)
{
    if (tooltip.optHoverObject == HoverObject::Image)
        return Fill(hoverImage, {{u"ImageName", RequirePath(files, 0, tooltip.txtImage)}});
    return Fill(hoverText, {{u"MainText", tooltip.txtMainText}});
}

std::optional<Complaint> CheckHoverObject(const Tooltips& tooltip)
{
    switch (tooltip.optHoverObject) {
    case HoverObject::Words:
        if (Trim(tooltip.txtMainText).empty())
            return Complaint{u"Please specify text below.", "txtMainText"};
        return std::nullopt;
    case HoverObject::Image:
        if (Trim(tooltip.txtImage).empty())
            return Complaint{u"Please specify an image.", "txtImage"};
        return std::nullopt;
    case HoverObject::None:
        break;
    }
    return Complaint{u"Please select which type of object (text or image) you wish the tooltip to "
                     u"be associated with.",
                     "optHoverObject(0)"};
}

} // namespace

std::optional<Complaint> CheckPage(const Tooltips& tooltip, int page)
{
    if (page == 0 && tooltip.txtTooltipText.empty())
        return Complaint{u"Please type the required text in the box below.", "txtTooltipText"};
    // Stays as it is: the focus goes to the title.
    if (page == 1 && !(IsNumeric(tooltip.txtWidth) && IsNumeric(tooltip.txtHeight)))
        return Complaint{u"Please type a valid width and height.", "txtTitleText"};
    return page == 2 ? CheckHoverObject(tooltip) : std::nullopt;
}

std::vector<Hint> HintsOf(const Tooltips& tooltip)
{
    return HintList()
        .Number("cboFontSize", tooltip.cboFontSize)
        .Number("txtWidth", tooltip.txtWidth)
        .Number("txtHeight", tooltip.txtHeight)
        .Hints();
}

EffectPayload Generate(const Tooltips& tooltip)
{
    const bool isAbove = tooltip.cboDisplayLocation == tooltipLocations[1];
    EffectPayload payload{.Kind = EffectKind::Tooltips};
    payload.HEADHTML = Fill(head, {{u"TopOffset", isAbove ? u" - box.offsetHeight" : u" + 20"}});
    payload.BODYHTML = Fill(body, {{u"Width", tooltip.txtWidth},
                                   {u"Height", tooltip.txtHeight},
                                   {u"BGColor", tooltip.BGColor},
                                   {u"Border3D", tooltip.chk3D ? border3D : TextView()},
                                   {u"TitleDiv", TitleDiv(tooltip)},
                                   {u"StyleCss", FontStyleDeclarations(tooltip.cboFontStyle)},
                                   {u"Font", tooltip.cboFont},
                                   {u"Size", tooltip.cboFontSize},
                                   {u"TextColor", tooltip.TextColor},
                                   {u"TooltipText", tooltip.txtTooltipText},
                                   {u"HoverObject", HoverElement(tooltip, payload.Required)}});
    return payload;
}

} // namespace orvane
