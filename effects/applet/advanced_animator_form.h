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

    /// Shows the animation of a project file, as File, Open does once the author has picked it.
    void ShowProject(TextView path);

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
