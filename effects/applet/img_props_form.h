#pragma once

#include "core/workbench.h"
#include "effects/applet/image_properties.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace orvane {

class PageBuilder;

/// The properties of one image of the Advanced Animator.
class ImgPropsForm : public QDialog
{
    Q_OBJECT

public:
    ImgPropsForm(Workbench& bench, const ImageRow& row, QWidget* parent = nullptr);

    /// The row as OK left it; the one handed in after Cancel.
    const ImageRow& Row() const { return m_row; }

    ImageProperties Properties() const;

private:
    void AddPause(PageBuilder& page);
    void AddSoundAndURL(PageBuilder& page);
    void AddTransition(PageBuilder& page);
    void AddButtons();
    void Load();
    void ChooseTransition(const QString& transition);
    void Show(const DirectionChoice& choice);
    void WaitForClick(bool isOn);
    void BrowseForSound();
    void BrowseForURL();
    void Take();
    void Report(const Complaint& complaint);

    Workbench& m_bench;
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
