#include "effects/text/digital_clock.h"

#include "core/template.h"
#include "services/font_fields.h"

#include <algorithm>

namespace orvane {

namespace {

// Stays as it is, October's number "010" included: the month is tested before it is raised.
constexpr Template script(uR"page(
<SCRIPT LANGUAGE='JavaScript'>
function DigitalClock()
{

   var newDate = new Date();
   var intDay = newDate.getDay();
   var intMonth = newDate.getMonth();
   var intWeekday = newDate.getDate();
   var intYear = newDate.getYear();
   var intHours = newDate.getHours();
   var intMinutes = newDate.getMinutes();
   var intSeconds = newDate.getSeconds();
   var strAMPM = 'AM';

   var aryDayName = new Array('Sunday','Monday','Tuesday','Wednesday','Thursday','Friday','Saturday');
   var aryMonth = new Array('January','February','March','April','May','June','July','August','September','October','November','December');

   var int24Hours = intHours;

   if (intHours > 11)
   {
       strAMPM = 'PM';
       intHours = intHours - 12;
   }

   if (intHours == 0)
       intHours = 12;

   if (intMinutes  <= 9)
       intMinutes  = '0' + intMinutes;

   if (intSeconds <= 9)
      intSeconds = '0' + intSeconds;

   if (intWeekday <= 9)
       var strDayNumber = '0' + intWeekday;
   else
       var strDayNumber = intWeekday;

   if (intYear < 200)
   {
       intYear = intYear + 1900;
   }

    if (intMonth <= 9)
       var strMonthNumber = '0' + (intMonth + 1);
   else
       var strMonthNumber = intMonth + 1;

   var strDayName = new String(aryDayName[intDay]);
   var strDayNameShort = strDayName.substring(0, 3);

   var strMonthName = new String(aryMonth[intMonth]);
   var strMonthNameShort = strMonthName.substring(0, 3);

   var strYear = new String(intYear);
   var strYearShort = strYear.substring(2, 4);
   var strClock = '';

 strClock = «ClockExpr»

 if (document.layers)
   {
       strClock = "<span style='«ClockStyle»'>" + strClock + "</span>"
       document.layers.lyrClock.document.write(strClock);
       document.layers.lyrClock.document.close();
   }
   else if (document.all)
       spnClock.innerHTML = strClock;
   else
       document.getElementById('spnClock').innerHTML = strClock;

   setTimeout('DigitalClock()',1000)
}

window.onload = DigitalClock;
</SCRIPT>
)page");

constexpr Template layer(uR"page(
<LAYER ID='lyrClock' bgcolor='«BGColor»'></LAYER>
)page");

constexpr Template span(uR"page(
<SPAN ID='spnClock' style='«ClockStyle»'>«Content»</SPAN>
)page");

constexpr TextView sampleContent =
    u"<span style='font-size:8pt;color:yellow;background-color:blue;'>"
    u"Digital clock will be displayed here</span>";

TextView ExpressionOf(TextView item)
{
    const auto found = std::ranges::find(dateFormats, item, &DateFormat::Item);
    return found == dateFormats.end() ? TextView() : found->Expression;
}

Text DateExpr(const DigitalClock& clock)
{
    return Join({clock.chkDayOfWeek ? u"strDayName + ', ' + " : u"'' + ",
                 ExpressionOf(clock.lstDateTimeFormat)});
}

Text TimeExpr(const DigitalClock& clock)
{
    return Join(
        {clock.chkMilitaryTime ? u"int24Hours + ':' + intMinutes" : u"intHours + ':' + intMinutes",
         clock.chkShowSeconds ? u" + ':' + intSeconds" : u"",
         clock.chkShowAMPM ? u" + ' ' + strAMPM" : u""});
}

Text ClockExpr(const DigitalClock& clock)
{
    constexpr TextView between = u" + ' &nbsp; ' + ";
    if (clock.optDateTime == ClockContent::Date)
        return DateExpr(clock);
    if (clock.optDateTime == ClockContent::Time)
        return TimeExpr(clock);
    if (clock.chkShowTimeBeforeDate)
        return Join({TimeExpr(clock), between, DateExpr(clock)});
    return Join({DateExpr(clock), between, TimeExpr(clock)});
}

Text ClockStyle(const DigitalClock& clock)
{
    Text style;
    if (!clock.BGColor.empty())
        style += u";background-color:" + clock.BGColor;
    if (!clock.FontColor.empty())
        style += u";color:" + clock.FontColor;
    style += FontStyleDeclarations(clock.cboFontStyle);
    style += u";font-family:" + clock.cboFont;
    style += u";font-size:" + clock.cboFontSize + u"pt";
    style += u";padding:" + clock.txtPadding;
    return style;
}

} // namespace

ClockPosition NextPage(const DigitalClock& clock, ClockPosition at)
{
    ++at.CurrentStep;
    ++at.CurrentPage;
    if (at.CurrentPage == 2 && clock.optDateTime == ClockContent::Time)
        at.CurrentPage = 3;
    else if (at.CurrentPage == 3 && clock.optDateTime == ClockContent::Date)
        at.CurrentPage = 4;
    return at;
}

ClockPosition PreviousPage(const DigitalClock& clock, ClockPosition at)
{
    --at.CurrentStep;
    --at.CurrentPage;
    if (at.CurrentPage == 3 && clock.optDateTime == ClockContent::Date)
        at.CurrentPage = 2;
    else if (at.CurrentPage == 2 && clock.optDateTime == ClockContent::Time)
        at.CurrentPage = 1;
    return at;
}

Look LookOf(const DigitalClock& clock)
{
    return {{.Control = "chkShowTimeBeforeDate",
             .IsShown = clock.optDateTime == ClockContent::DateAndTime}};
}

std::optional<Complaint> Check(const DigitalClock& clock)
{
    if (clock.lstDateTimeFormat.empty() && clock.optDateTime != ClockContent::Time)
        return Complaint{u"Please select a Date format from the list below.", "lstDateTimeFormat"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const DigitalClock& clock)
{
    HintList hints;
    hints.InScript("cboFont", clock.cboFont, bothQuotes)
        .InScript("cboFontSize", clock.cboFontSize, bothQuotes)
        .Number("cboFontSize", clock.cboFontSize)
        .InScript("txtPadding", clock.txtPadding, bothQuotes);
    if (!IsStyleLength(clock.txtPadding))
        hints.Say("txtPadding", notANumber);
    return hints.Hints();
}

EffectPayload Generate(const DigitalClock& clock)
{
    const Text style = ClockStyle(clock);
    const Text code = Fill(script, {{u"ClockExpr", ClockExpr(clock)}, {u"ClockStyle", style}});
    const Text layerLine = Fill(layer, {{u"BGColor", clock.BGColor}});
    const auto spanLine = [&](TextView content) {
        return Fill(span, {{u"ClockStyle", style}, {u"Content", content}});
    };
    return {.Kind = EffectKind::DigitalClock,
            .BODYHTML = Join({code, lineEnd, layerLine, spanLine({})}),
            .SavedHEAD = code,
            .SavedBODY = layerLine + spanLine(sampleContent)};
}

} // namespace orvane
