#pragma once

#include "effects/applet/animation_project.h"
#include "windows/effect_form.h"

#include <string>

namespace orvane {

class ImageListPanel;

/// The window of the Advanced Animator.
class AdvancedAnimatorForm : public EffectForm<AdvancedAnimator>
{
public:
    explicit AdvancedAnimatorForm(Workbench& bench, QWidget* parent = nullptr);

    /// Opens a project file as LoadProject() does; anything else is a project without a name.
    void Open(const Opening& opening) override;

protected:
    void UpdateForm() override { ShowTitle(); }

private:
    using SaveCommand = bool (*)(AnimationProject& project, Dialogs& dialogs, FileStore& files);

    void AddMenus();
    void AddFields(PageBuilder& page);
    AnimationProject Project() const { return {Parameters(), m_path, m_saved}; }
    void ShowProject(TextView path);
    void TakeProject(const AnimationProject& project);
    void Save(SaveCommand save);
    void KeepProject(const AnimationProject& project);
    void ShowTitle();
    void SetProperties();

    Text m_path;         ///< of the open project
    std::string m_saved; ///< its bytes
    ImageListPanel* m_images;
    QPushButton* SetPropsButton = nullptr;
    orvane::ColorSwatch* Label16 = nullptr;
    QMenu* mnuProperties = nullptr;
};

} // namespace orvane
