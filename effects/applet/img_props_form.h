#pragma once

#include "effects/applet/image_properties.h"
#include "windows/ok_cancel_form.h"

class QCheckBox;
class QComboBox;

namespace orvane {

/// The window for the properties of one image of the Advanced Animator.
class ImgPropsForm : public OkCancelForm
{
    Q_OBJECT

public:
    /// A sound that the author picks is recorded in `files`, which must outlive the window.
    ImgPropsForm(Workbench& bench, RequiredFiles& files, const ImageRow& row,
                 QWidget* parent = nullptr);

    /// The row with the properties that OK took over; after Cancel, the row that was handed in.
    const ImageRow& Row() const { return m_row; }

    /// What stands in the fields.
    ImageProperties Properties() const;

protected:
    void Accept() override;

private:
    void AddPause(PageBuilder& page);
    void AddSoundAndURL(PageBuilder& page);
    void AddTransition(PageBuilder& page);
    void Load();
    void ChooseTransition(const QString& transition);
    void Show(const DirectionChoice& choice);
    void WaitForClick(bool isOn);

    RequiredFiles& m_files;
    ImageRow m_row;
    QLineEdit* Text1;
    QCheckBox* Check1;
    QLineEdit* Text3;
    QLineEdit* Text2;
    QComboBox* Combo3;
    QLabel* lblDirection;
    QComboBox* Combo1;
    QLabel* lblDescription;
};

} // namespace orvane
