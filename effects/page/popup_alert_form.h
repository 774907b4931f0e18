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
};

} // namespace orvane
