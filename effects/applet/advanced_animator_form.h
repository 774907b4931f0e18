#pragma once

#include "effects/applet/advanced_animator.h"
#include "windows/effect_form.h"

namespace orvane {

class ImageListPanel;

/// The window of the Advanced Animator.
class AdvancedAnimatorForm : public EffectForm<AdvancedAnimator>
{
public:
    explicit AdvancedAnimatorForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddMenus();
    void AddFields(PageBuilder& page);
    void TakeProject(const AdvancedAnimator& animator);
    void SetProperties();

    ImageListPanel* m_images;
    QPushButton* SetPropsButton = nullptr;
    orvane::ColorSwatch* Label16 = nullptr;
    QMenu* mnuProperties = nullptr;
};

} // namespace orvane
