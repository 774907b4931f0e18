#pragma once

#include "effects/page/popup_window.h"
#include "windows/effect_form.h"
#include "windows/key_choice.h"

class QGroupBox;

namespace orvane {

/// The window of the PopUp Window.
class PopupWindowForm : public EffectForm<PopupWindow>
{
    Q_OBJECT

public:
    explicit PopupWindowForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void UpdateForm() override;

private:
    void AddAppearPage();
    void AddWindowPage();
    void AddOtherProperties(PageBuilder& page);
    void ShowLink(const LinkSettings& settings);
    void ChooseWhenToAppear();
    void TakeSize(const Text& path);

    KeyChoice m_keys;
    WhenToAppear m_choice = WhenToAppear::OnLoad; ///< the choice that the link frame is set for
    QGroupBox* frameLinkSettings;
    QLabel* lblLinkExplanation;
    QLabel* lblLinkItem;
    FileNameBox* txtLinkItem;
    QPushButton* cmdBrowseForImage;
    QLineEdit* txtWidth;
    QLineEdit* txtHeight;
};

} // namespace orvane
