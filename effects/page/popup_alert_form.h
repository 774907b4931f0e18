#pragma once

#include "effects/page/popup_alert.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Popup Alert Box.
class PopupAlertForm : public EffectForm<PopupAlert>
{
    Q_OBJECT

public:
    explicit PopupAlertForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void UpdateForm() override;

private:
    void ChangePopUpAlertType();

    QComboBox* cmboAlertType;
    orvane::MultiLineBox* txtAlertText;
    QLabel* lblAlertTypeDesc;
};

} // namespace orvane
