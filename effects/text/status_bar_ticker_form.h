#pragma once

#include "effects/text/status_bar_ticker.h"
#include "windows/wizard_form.h"

namespace orvane {

/// The window of the Status Bar Ticker.
class StatusBarTickerForm : public WizardForm
{
    Q_OBJECT

public:
    explicit StatusBarTickerForm(Workbench& bench, QWidget* parent = nullptr);

    StatusBarTicker Parameters() const;
    void SetParameters(const StatusBarTicker& ticker);

    /// Takes the text of the pasted script. No way of the program leads here: pasted scripts are
    /// not recognised.
    void EditApplet();

protected:
    void Next() override;

private:
    QLineEdit* txtStatusBarText;
};

} // namespace orvane
