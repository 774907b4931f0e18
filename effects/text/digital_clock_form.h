#pragma once

#include "effects/text/digital_clock.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Digital Clock.
class DigitalClockForm : public EffectForm<DigitalClock>
{
public:
    explicit DigitalClockForm(Workbench& bench, QWidget* parent = nullptr);

    /// Shows the page with that number, counted from 1. 5 delivers the clock; a number outside 1 to
    /// 5 does nothing. Without a date format, pages 3 and 4 are refused with a message.
    void ChangePage(int page);

protected:
    void Next() override;
    void Previous() override;

private:
    void AddContentPage();
    void AddDatePage();
    void AddTimePage();
    void AddPropertiesPage();

    ClockPosition m_position;
};

} // namespace orvane
