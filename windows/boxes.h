#pragma once

#include "core/text.h"

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

/// How far a slider goes, and how it moves.
struct SliderRange
{
    int Lowest = 0;
    int Highest = 100;
    int Tick = 10;
    int LargeStep = 5;
    int SmallStep = 1;
};

/// A box for one line that takes what the author gives, however long.
QLineEdit* MakeTextBox(QWidget* parent);

/// A box to tick; a long caption takes two lines.
QCheckBox* MakeCheckBox(TextView caption, QWidget* parent);

/// A box with a list of items; what is typed into an editable one stays as it is.
QComboBox* MakeComboBox(std::span<const TextView> items, bool isEditable, QWidget* parent);

/// Shows a text in a combo box: its item is current when there is one, and an editable box takes
/// any other text as well.
void SetComboText(QComboBox& box, TextView text);

/// A slider that lies, with ticks below it.
QSlider* MakeSlider(const SliderRange& range, QWidget* parent);

/// A box of page code, to be read and selected by mouse and keyboard; Tab leaves it.
MultiLineBox* MakeCodeBox(QWidget* parent);

/// What an option means, in words below it; a click on them selects the option.
QLabel* MakeOptionWords(TextView words, QRadioButton* option, QWidget* parent);

/// A picture of the program's resources, such as "status_bar_sample".
QLabel* MakePicture(const QString& name, QSize size, QWidget* parent);

} // namespace orvane
