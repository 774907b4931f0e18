#pragma once

#include "core/fields.h"

#include <QSize>

#include <span>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSlider;
class QString;
class QWidget;

namespace orvane {

class MultiLineBox;

/// The range of a slider, the distance of its ticks, and its steps by keyboard.
struct SliderRange
{
    int Lowest = 0;
    int Highest = 100;
    int Tick = 10;
    int LargeStep = 5; ///< by Page Up and Page Down
    int SmallStep = 1; ///< by the arrow keys
};

/// An item of a combo box whose value is not what the author sees.
struct ChoiceItem
{
    TextView Value;
    TextView Caption = {}; ///< empty: the value itself
};

/// A text box for one line of any length.
QLineEdit* MakeTextBox(QWidget* parent);

/// A check box; a caption of more than 90 characters takes two lines.
QCheckBox* MakeCheckBox(TextView caption, QWidget* parent);

/// An option button, with a caption like that of a check box.
QRadioButton* MakeOption(TextView caption, QWidget* parent);

/// A combo box; what is typed into an editable one stays as it is, without completion.
QComboBox* MakeComboBox(std::span<const TextView> items, bool isEditable, QWidget* parent);

/// A combo box like that of MakeComboBox(), with a value behind each item.
QComboBox* MakeChoiceBox(std::span<const ChoiceItem> items, bool isEditable, QWidget* parent);

/// The value of the item whose text the box shows; the text itself where no value stands behind it.
Text ComboText(const QComboBox& box);

/// Makes the item with this value current, or else that with this text. Without such an item an
/// editable box shows the text all the same, and any other box has no current item.
void SetComboText(QComboBox& box, TextView text);

/// A horizontal slider with ticks below it.
QSlider* MakeSlider(const SliderRange& range, QWidget* parent);

/// Gives a slider these bounds, ten ticks, and steps to match.
void SetSliderRange(QSlider& slider, const NumberBounds& bounds);

/// A read-only box for page code, which can be selected by mouse and keyboard; Tab leaves it.
MultiLineBox* MakeCodeBox(QWidget* parent);

/// A label that explains an option button; a click on the label selects the option.
QLabel* MakeOptionWords(TextView words, QRadioButton* option, QWidget* parent);

/// A label with a picture of the program's resources, such as "status_bar_sample".
QLabel* MakePicture(const QString& name, QSize size, QWidget* parent);

} // namespace orvane
