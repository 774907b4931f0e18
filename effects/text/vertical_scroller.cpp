#include "effects/text/vertical_scroller.h"

#include "core/numbers.h"
#include "core/orvane_core.h"
#include "core/template.h"
#include "services/font_fields.h"
#include "services/web_address.h"

namespace orvane {

namespace {

constexpr Template head(uR"page(
<script type='text/javascript' language='javascript'><!--
   var timer;
   var spanToMove;
   var spanContainer;
   var speed = «Speed»;
   var numMsgs = «ItemCount»;
   var intMsgNum = 0;
   var intPause = «Pause»;
   var aryText = new Array;
«ArrayLines»
   if (document.all)
       var isIE = true;
   else if (document.getElementById)
       var isNS6 = true;
   else if (document.layers)
       var isNS4 = true;

function moveSpan() {
   if (isIE) {
       spanToMove = document.all.spnOne;
       spanContainer = document.all.divContainer;
   } else {
       spanToMove = document.getElementById('spnOne');
       spanContainer = document.getElementById('divContainer');
   }

   if (parseInt(spanToMove.style.top) == 0 && intPause > 0) {
       clearTimeout(timer);
       spanToMove.style.top = parseInt(spanToMove.style.top) - 1;
       timer = window.setTimeout('moveSpan()', intPause * 1000);
       return; }
   else if (parseInt(spanToMove.style.top) > (0 - spanToMove.offsetHeight))
       spanToMove.style.top = parseInt(spanToMove.style.top) - 1;
   else {
       intMsgNum ++;
       if (intMsgNum > numMsgs-1)
           intMsgNum =0;
   spanToMove.innerHTML = aryText[intMsgNum];
   spanToMove.style.top = spanContainer.style.height; }

   timer = window.setTimeout('moveSpan()', speed); }

function mouseover() {
   clearTimeout(timer); }

   //-->
</script>
<STYLE type='text/css'>
   A.scrolllink {
       color:«LinkColor»; }
   A.scrolllink: hover {
       color:«LinkColor»; }
</STYLE>)page");

constexpr Template plainRow(uR"page(
   aryText[«Row»] = '«RowText»';
)page");

// Stays as it is: an apostrophe in the address ends the text, as it does on earlier pages.
constexpr Template linkedRow(uR"page(
   aryText[«Row»] = '<a class=scrolllink href=\'«RowLink»\'>«RowText»</a>';
)page");

constexpr Template body(uR"page(
<div id='divContainer' style='position:relative; left:0; width:«Width»; height:«Height»;background-color:«BGColor»; overflow:hidden;'>
   <span id='spnOne' style='position:relative; background-color:«BGColor»; top:150«FontStyle»;font-family:«Font»; font-size:«FontSize»pt; color:«TextColor»' onMouseover='mouseover()' onMouseout='moveSpan();'>
   <nobr>«FirstItem»</nobr>
   </span>
</div>)page");

// Stays as it is: the first message leads to its page from the second round on.
constexpr Template linkedFirstItem(uR"page(<a href='' class='scrolllink'>«RowText»</a>)page");

constexpr int slowestPixel = 105; ///< milliseconds, from which the slider's value is taken away

Text ConvertCRtoBR(TextView text)
{
    return ReplaceAll(text, lineEnd, u"<br>");
}

Text FirstItem(const ScrollerItem& item)
{
    const Text text = ConvertCRtoBR(item.txtItem);
    return item.txtItemURL.empty() ? text : Fill(linkedFirstItem, {{u"RowText", text}});
}

Text ArrayLines(const VerticalScroller& scroller)
{
    Text lines;
    for (std::size_t row = 0; row < scroller.Items.size(); ++row) {
        const Text number = NumberToText(row);
        const Text text = EscapeApostrophes(ConvertCRtoBR(scroller.Items[row].txtItem));
        const Text& link = scroller.Items[row].txtItemURL;
        lines += link.empty()
                     ? Fill(plainRow, {{u"Row", number}, {u"RowText", text}})
                     : Fill(linkedRow, {{u"Row", number}, {u"RowLink", link}, {u"RowText", text}});
    }
    return lines;
}

void TakeDefault(Text& color, TextView usual)
{
    if (color.empty())
        color = usual;
}

} // namespace

std::optional<Complaint> Check(const ScrollerItem& item)
{
    if (item.txtItem.empty())
        return Complaint{u"Enter item text in the text input box below.", "txtItem"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const ScrollerItem& item)
{
    return HintList().InScript("txtItemURL", item.txtItemURL, u"'").Hints();
}

void Tidy(ScrollerItem& item)
{
    item.txtItemURL = WithScheme(item.txtItemURL);
}

std::optional<Complaint> CheckPage(const VerticalScroller& scroller, int page)
{
    if (page == 0 && scroller.Items.empty())
        return Complaint{u"Please add an item to the list.", "cmdAdd"};
    if (page == 2 && !(IsNumeric(scroller.txtWidth) && IsNumeric(scroller.txtHeight)))
        return Complaint{u"Please type a valid width and height for the Vertical Scroller.",
                         "txtWidth"};
    return std::nullopt;
}

void Tidy(VerticalScroller& scroller)
{
    TakeDefault(scroller.BGColor, u"#FFFFFF");
    TakeDefault(scroller.TextColor, u"#000000");
    TakeDefault(scroller.LinkColor, u"#0000FF");
}

std::vector<Hint> HintsOf(const VerticalScroller& scroller)
{
    HintList hints;
    for (const ScrollerItem& item : scroller.Items)
        hints.InScript("lstLinks", item.txtItemURL, u"'");
    return hints.Number("cboFontSize", scroller.cboFontSize)
        .Number("txtWidth", scroller.txtWidth)
        .Number("txtHeight", scroller.txtHeight)
        .Seconds("txtPause", scroller.txtPause, longestTimer)
        .Hints();
}

EffectPayload Generate(const VerticalScroller& scroller)
{
    EffectPayload payload{.Kind = EffectKind::VerticalScroller};
    payload.HEADHTML = Fill(
        head, {{u"Speed", NumberToText(slowestPixel - scroller.sldrSpeed)},
               {u"ItemCount", NumberToText(scroller.Items.size())},
               {u"Pause", IsNumeric(scroller.txtPause) ? Trim(scroller.txtPause) : TextView(u"3")},
               {u"ArrayLines", ArrayLines(scroller)},
               {u"LinkColor", scroller.LinkColor}});
    payload.BODYHTML = Fill(body, {{u"Width", scroller.txtWidth},
                                   {u"Height", scroller.txtHeight},
                                   {u"BGColor", scroller.BGColor},
                                   {u"FontStyle", FontStyleDeclarations(scroller.cboFontStyle)},
                                   {u"Font", scroller.cboFont},
                                   {u"FontSize", scroller.cboFontSize},
                                   {u"TextColor", scroller.TextColor},
                                   {u"FirstItem", FirstItem(scroller.Items.front())}});
    payload.OnLoadFunc = u"moveSpan";
    payload.OnLoadArgs = u"()";
    payload.SavedHEAD = payload.BODYHTML;
    return payload;
}

} // namespace orvane
