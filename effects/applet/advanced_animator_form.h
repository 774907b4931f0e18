#pragma once

#include "effects/applet/advanced_animator.h"
#include "windows/wizard_form.h"

class QComboBox;
class QMenu;

namespace orvane {

class ImageListPanel;

/// The window of the Advanced Animator.
class AdvancedAnimatorForm : public WizardForm
{
    Q_OBJECT

public:
    explicit AdvancedAnimatorForm(Workbench& bench, QWidget* parent = nullptr);

    AdvancedAnimator Parameters() const;
    void SetParameters(const AdvancedAnimator& animator);

    /// Fills the window from the pasted tag and ends the edit.
    void EditApplet();

protected:
    void Next() override;

private:
    void AddMenus();
    QAction* AddCommand(QMenu* menu, const QString& name, TextView caption);
    void AddFields(PageBuilder& page);
    void SetProperties();

    ImageListPanel* m_images;
    QLineEdit* Text20;
    QLineEdit* Text21;
    QComboBox* Combo3;
    QPushButton* SetPropsButton;
    QMenu* mnuProperties;
    Text m_background; ///< what the swatch shows may be another colour, or none
};

} // namespace orvane
