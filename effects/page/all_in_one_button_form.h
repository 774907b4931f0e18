#pragma once

#include "effects/page/all_in_one_button.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the All-in-One Button.
class AllInOneButtonForm : public EffectForm<AllInOneButton>
{
    Q_OBJECT

public:
    explicit AllInOneButtonForm(Workbench& bench, QWidget* parent = nullptr);

    /// Empties the boxes for the button's text and for the target.
    void ShowCorrectInputBoxes();

protected:
    void UpdateForm() override;
    void Next() override;
    void TakeDraft(TextView draft) override;

private:
    void AddActionPage();
    void AddPropertiesPage();
    void AddTextRow(PageBuilder& frame);
    void AddTargetRow(PageBuilder& frame);
    void ChooseType(bool isOn);

    bool m_keepsTexts = false; ///< the next page keeps the texts of a draft
    FileNameBox* txtButtonText;
    FileNameBox* txtURL;
    QPushButton* cmdBrowsePage; ///< both are named `cmdBrowse`; one is shown
    QPushButton* cmdBrowseSound;
};

} // namespace orvane
