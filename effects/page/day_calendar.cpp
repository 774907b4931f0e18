#include "effects/page/day_calendar.h"

namespace orvane {

BlockContent ContentOf(const DayCalendar&)
{
    return BlockDay();
}

Look LookOf(const DayCalendar& calendar)
{
    Look look;
    for (const ControlName ofLeaf :
         {"cmdHeadColor", "cmdHeadTextColor", "cmdPaperColor", "txtCorners"})
        look.push_back({.Control = ofLeaf, .IsEnabled = calendar.cboLook == u"leaf"});
    return look;
}

std::optional<Complaint> CheckPage(const DayCalendar& calendar, int page)
{
    if (!calendar.chkMonth && !calendar.chkWeekday && !calendar.chkDay && !calendar.chkYear)
        return Complaint{u"Please choose at least one line for the calendar.", "chkMonth"};
    return CheckNumbers(calendar, page);
}

} // namespace orvane
