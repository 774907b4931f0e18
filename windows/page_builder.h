#pragma once

#include "core/workbench.h"
#include "services/color.h"
#include "windows/acting_list.h"
#include "windows/boxes.h"
#include "windows/browse.h"
#include "windows/controls.h"
#include "windows/file_name_box.h"
#include "windows/link_label.h"
#include "windows/page_rows.h"

#include <QLineEdit>

#include <initializer_list>
#include <span>

class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;
class QSlider;

namespace orvane {

class ColorSwatch;
class MultiLineBox;
class NumberBox;

/// Builds the pages of all windows. Each call adds one row below the last one and returns its
/// control, unless its comment says otherwise. `name` is the control's object name, `tip` its tool
/// tip.
class PageBuilder : public PageRows
{
public:
    /// Gives `page` a form layout and builds into it. Without a bench these rows must not be
    /// called: locked boxes, Browse buttons, colours and fonts, which ask the author by its
    /// dialogs.
    explicit PageBuilder(QWidget* page, Workbench* bench = nullptr);

    /// A box that takes any text, with the words `unit` to the right of it.
    QLineEdit* TextBox(ControlName name, TextView label, TextView tip = {}, TextView unit = {});

    /// A box that takes any text, with a button beside it that Button() made.
    QLineEdit* TextBoxWithButton(ControlName name, TextView label, QPushButton* button,
                                 TextView tip = {});

    /// A box for a text of several lines; Tab leaves it.
    orvane::MultiLineBox* MultiLineBox(ControlName name, TextView label, TextView tip = {});

    /// A file field that is filled by Browse alone unless the preferences unlock it.
    FileNameBox* LockedTextBox(ControlName name, TextView label, TextView tip = {});

    /// Makes the button that fills the field through a file dialog; adds no row, the caller puts it
    /// into the field's row.
    QPushButton* BrowseButton(QLineEdit* field, BrowseRule rule);

    /// A locked file field with its Browse button.
    FileNameBox* LockedBrowseRow(ControlName name, TextView label, TextView tip, BrowseRule rule);
    /// A box that takes any text, with a Browse button beside it.
    QLineEdit* BrowseRow(ControlName name, TextView label, TextView tip, BrowseRule rule,
                         TextView unit = {});

    /// A combo box, with the words `unit` to the right of it.
    QComboBox* ComboBox(ControlName name, TextView label, std::span<const TextView> items,
                        bool isEditable, TextView tip = {}, TextView unit = {});

    /// A combo box whose items have a value each, which is that of the field; it takes no other.
    QComboBox* ChoiceBox(ControlName name, TextView label, std::span<const ChoiceItem> items,
                         TextView tip = {}, TextView unit = {});
    /// The same, which takes any other text too.
    QComboBox* OpenChoiceBox(ControlName name, TextView label, std::span<const ChoiceItem> items,
                             TextView tip = {}, TextView unit = {});

    /// A combo box with the basic colours, and a swatch beside it that writes a picked colour into
    /// the box, as "255,128,0".
    QComboBox* ColorBox(ControlName name, TextView label, ControlName swatch);

    /// A text box with up-down buttons that step a number between the two bounds.
    orvane::NumberBox* NumberBox(ControlName name, TextView label, int lowest, int highest,
                                 TextView tip = {}, TextView unit = {});
    /// The same; the bounds are those of the field, where the window's effect has such a field.
    orvane::NumberBox* NumberBox(ControlName name, TextView label, TextView tip = {},
                                 TextView unit = {});

    /// A slider, with the words `low` at its left end and `high` at its right end.
    QSlider* Slider(ControlName name, TextView label, TextView low, TextView high,
                    const SliderRange& range, TextView tip = {});

    /// A colour field that shows `caption` until a colour is picked, and writes it in the notation.
    orvane::ColorSwatch* ColorSwatch(ControlName name, TextView label,
                                     ColorNotation notation = ColorNotation::Hash,
                                     TextView caption = u"Click to Select Color",
                                     TextView tip = u"Click here to select a color");

    /// Font, size and style as `cboFont`, `cboFontSize` and `cboFontStyle`, and the button that
    /// opens the font dialog; `sizeUnit` stands to the right of the size.
    void FontRow(ControlName button = "cmdMoreFonts", TextView sizeUnit = u"points");

    /// A list box with these items below its label; it takes the height that is left.
    ActingList* ListBox(ControlName name, TextView label, std::span<const TextView> items);
    /// A check box.
    QCheckBox* CheckBox(ControlName name, TextView caption, TextView tip = {});

    /// One option button of a group, counted from 0. Below it stands a description, which selects
    /// it by a click as well, and to the right of that a picture of the program's resources, such
    /// as "sample_date"; without a description no picture is shown.
    QRadioButton* Option(ControlName group, int index, TextView caption, TextView description = {},
                         const QString& picture = {});

    /// The option buttons of a whole group, one below the other.
    void OptionGroup(ControlName group, std::initializer_list<TextView> captions);

    /// A hidden text box, for a field that the author does not see; takes no row.
    QLineEdit* HiddenText(ControlName name);

    /// A read-only box of page code; it takes the height that is left.
    orvane::MultiLineBox* CodeBox(ControlName name, TextView accessibleName);

    /// A frame "Example" with a picture of what the effect looks like.
    void Example(const QString& picture, QSize size);

    /// The bench of rows that ask the author. Expects that there is one.
    Workbench& Bench() const { return *m_bench; }

    /// A framed group with a caption; the returned builder adds to it.
    PageBuilder Frame(TextView caption, ControlName name = {});

private:
    Workbench* m_bench;
};

} // namespace orvane
