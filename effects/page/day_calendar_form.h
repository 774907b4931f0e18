#pragma once

#include "effects/page/day_calendar.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Day Calendar.
class DayCalendarForm : public EffectForm<DayCalendar>
{
public:
    explicit DayCalendarForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
