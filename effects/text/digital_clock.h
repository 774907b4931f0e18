#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/payload.h"
#include "core/pick_lists.h"
#include "services/hints.h"

#include <array>
#include <cstdint>
#include <optional>

namespace orvane {

/// What a clock tells; the numbers are the indexes of the options.
enum class ClockContent
{
    Date = 0,
    Time = 1,
    DateAndTime = 2,
};

/// What the author enters on the Digital Clock window; the defaults are those of a fresh window.
struct DigitalClock
{
    static constexpr std::array Kinds = {EffectKind::DigitalClock};
    static constexpr int Pages = 4;

    ClockContent optDateTime = ClockContent::Date;
    Text lstDateTimeFormat; ///< the selected item; empty when none is selected
    bool chkDayOfWeek = false;
    bool chkShowTimeBeforeDate = false; ///< counts only for DateAndTime
    bool chkMilitaryTime = false;
    bool chkShowSeconds = false;
    bool chkShowAMPM = false;
    Text cboFont = u"Arial";
    Text cboFontSize = Text(FontSizes[6]);
    Text cboFontStyle = u"Normal";
    Text txtPadding = u"2";
    Text BGColor;   ///< "#" and six digits; empty when none was picked
    Text FontColor; ///< the same
    bool operator==(const DigitalClock&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<DigitalClock> Clock, class Field>
void ForEachField(Clock& clock, Field&& field)
{
    field("optDateTime", clock.optDateTime);
    field("lstDateTimeFormat", clock.lstDateTimeFormat);
    field("chkDayOfWeek", clock.chkDayOfWeek);
    field("chkShowTimeBeforeDate", clock.chkShowTimeBeforeDate);
    field("chkMilitaryTime", clock.chkMilitaryTime);
    field("chkShowSeconds", clock.chkShowSeconds);
    field("chkShowAMPM", clock.chkShowAMPM);
    field("cboFont", clock.cboFont);
    field("cboFontSize", clock.cboFontSize);
    field("cboFontStyle", clock.cboFontStyle);
    field("txtPadding", clock.txtPadding);
    field("lblBGColor", clock.BGColor);
    field("lblFontColor", clock.FontColor);
}

/// A date format as its list item shows it, and its expression in the clock's script.
struct DateFormat
{
    TextView Item;
    TextView Expression;
};

/// The date formats in the order of their list.
inline constexpr std::array<DateFormat, 12> dateFormats = {{
    {u"November 28, 2001", u"strMonthName + ' ' + intWeekday + ', ' + intYear"},
    {u"28 November 2001", u"intWeekday + ' ' + strMonthName + ' ' + strYear"},
    {u"November 2001", u"strMonthName + ' ' + intYear"},
    {u"November 28", u"strMonthName + ' ' + intWeekday"},
    {u"11/28/01", u"strMonthNumber + '/' + strDayNumber + '/' + strYearShort"},
    {u"11-28-01", u"strMonthNumber + '-' + strDayNumber + '-' + strYearShort"},
    {u"11/28/2001", u"strMonthNumber + '/' + strDayNumber + '/' + strYear"},
    {u"11-28-2001", u"strMonthNumber + '-' + strDayNumber + '-' + strYear"},
    {u"28/11/01", u"strDayNumber + '/' + strMonthNumber + '/' + strYearShort"},
    {u"28-11-01", u"strDayNumber + '-' + strMonthNumber + '-' + strYearShort"},
    {u"28/11/2001", u"strDayNumber + '/' + strMonthNumber + '/' + strYear"},
    // Stays as it is: the last format has never had its expression, so its script does not run.
    {u"28-11-2001", u""},
}};

/// Where the author is: the page, counted from 1, and the number of pages seen, which the heading
/// shows. Page 5 means that the wizard ends.
struct ClockPosition
{
    std::int16_t CurrentPage = 1;
    std::int16_t CurrentStep = 1;
    bool operator==(const ClockPosition&) const = default;
};

/// The position after Next; the date page is skipped for the time alone, the time page for the date
/// alone.
ClockPosition NextPage(const DigitalClock& clock, ClockPosition at);

/// The position after Previous, with the same pages skipped; the step falls by one even then.
ClockPosition PreviousPage(const DigitalClock& clock, ClockPosition at);

/// The box for the order of the two, where both are shown.
Look LookOf(const DigitalClock& clock);

/// The complaint about a missing date format, or nothing; pages 3 and 4 are not shown with it.
std::optional<Complaint> Check(const DigitalClock& clock);

/// The hints at quotes in the style that stands in the script, and at numbers that are none.
std::vector<Hint> HintsOf(const DigitalClock& clock);

/// The clock's page text; SavedHEAD is its script alone, SavedBODY its elements with sample words
/// in place of the time. Expects a clock that passes Check().
EffectPayload Generate(const DigitalClock& clock);

} // namespace orvane
