#pragma once

#include "effects/page/popup_window.h"
#include "windows/effect_form.h"
#include "windows/key_choice.h"

namespace orvane {

/// The window of the PopUp Window.
class PopupWindowForm : public EffectForm<PopupWindow>
{
    Q_OBJECT

public:
    explicit PopupWindowForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddAppearPage();
    void AddWindowPage();
    void AddOtherProperties(PageBuilder& page);
    void ChooseWhenToAppear(bool isOn);
    void TakeSize(const Text& path);

    KeyChoice m_keys;
    FileNameBox* txtLinkItem;
    QLineEdit* txtWidth;
    QLineEdit* txtHeight;
};

} // namespace orvane
