#pragma once

#include "effects/text/digital_clock.h"
#include "windows/font_boxes.h"
#include "windows/wizard_form.h"

#include <array>

namespace orvane {

/// The window of the Digital Clock.
class DigitalClockForm : public WizardForm
{
    Q_OBJECT

public:
    explicit DigitalClockForm(Workbench& bench, QWidget* parent = nullptr);

    DigitalClock Parameters() const;
    void SetParameters(const DigitalClock& clock);

    /// Shows the page with that number; 5 delivers the clock, any number beyond 1 to 5 does
    /// nothing. Without a date format pages 3 and 4 are refused with a message.
    void ChangePage(int page);

protected:
    void Next() override;
    void Previous() override;

private:
    void BuildContentPage(PageBuilder page);
    void BuildDatePage(PageBuilder page);
    void BuildTimePage(PageBuilder page);
    void BuildPropertiesPage(PageBuilder page);
    EffectPayload CreateCode(const DigitalClock& clock);

    std::array<QRadioButton*, 3> optDateTime{};
    QListWidget* lstDateTimeFormat = nullptr;
    QCheckBox* chkDayOfWeek = nullptr;
    QCheckBox* chkShowTimeBeforeDate = nullptr;
    QCheckBox* chkMilitaryTime = nullptr;
    QCheckBox* chkShowSeconds = nullptr;
    QCheckBox* chkShowAMPM = nullptr;
    std::optional<FontBoxes> m_font;
    NumberBox* txtPadding = nullptr;
    ColorSwatch* lblBGColor = nullptr;
    ColorSwatch* lblFontColor = nullptr;

    ClockPosition m_position;
    Text BGColor; ///< "#" and six digits; empty when none was picked
    Text FontColor;
};

} // namespace orvane
