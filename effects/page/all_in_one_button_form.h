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

    /// Empties the boxes for the button's text and for the target, and shows the boxes that type
    /// and action need.
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
    void ChooseType();

    ButtonType m_type = ButtonType::Button; ///< the type that the boxes are set for
    bool m_keepsTexts = false;              ///< the next page keeps the texts of a draft
    QLabel* lblButtonText;
    FileNameBox* txtButtonText;
    QPushButton* cmdBrowseForImage;
    QLabel* lblURL;
    FileNameBox* txtURL;
    QPushButton* cmdBrowsePage; ///< both are named `cmdBrowse`; one is shown
    QPushButton* cmdBrowseSound;
    QLineEdit* txtBookmarkURL;
    QLineEdit* txtBookmarkTitle;
};

} // namespace orvane
