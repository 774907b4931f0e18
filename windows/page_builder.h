#pragma once

#include "core/workbench.h"
#include "services/color.h"
#include "windows/acting_list.h"
#include "windows/boxes.h"
#include "windows/browse.h"
#include "windows/controls.h"
#include "windows/file_name_box.h"
#include "windows/link_label.h"

#include <QLabel>
#include <QLineEdit>

#include <initializer_list>
#include <span>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QHBoxLayout;
class QPushButton;
class QRadioButton;
class QSlider;

namespace orvane {

class ColorSwatch;
class MultiLineBox;
class NumberBox;

/// The row vocabulary of all windows: each call adds one row, in reading order.
class PageBuilder
{
public:
    /// Builds into the layout of `page`, which it makes. Without a bench the page has no row that
    /// asks the author something.
    explicit PageBuilder(QWidget* page, Workbench* bench = nullptr);

    /// A box that takes any text; `unit` stands behind it.
    QLineEdit* TextBox(ControlName name, TextView label, TextView tip = {}, TextView unit = {});

    /// A box that takes any text, with a button of this page beside it.
    QLineEdit* TextBoxWithButton(ControlName name, TextView label, QPushButton* button,
                                 TextView tip = {});

    /// A box for several lines; Tab leaves it.
    orvane::MultiLineBox* MultiLineBox(ControlName name, TextView label, TextView tip = {});

    /// A file field that is filled by Browse alone unless the preferences unlock it.
    FileNameBox* LockedTextBox(ControlName name, TextView label, TextView tip = {});

    /// The button that fills the field through a file dialog, to be put into the field's row.
    QPushButton* BrowseButton(QLineEdit* field, BrowseRule rule);

    /// A locked file field with its Browse button, and one that any text may be typed into.
    FileNameBox* LockedBrowseRow(ControlName name, TextView label, TextView tip, BrowseRule rule);
    QLineEdit* BrowseRow(ControlName name, TextView label, TextView tip, BrowseRule rule,
                         TextView unit = {});

    QComboBox* ComboBox(ControlName name, TextView label, std::span<const TextView> items,
                        bool isEditable, TextView tip = {}, TextView unit = {});

    /// A box with the basic colours, and a swatch beside it that puts a picked colour's channels
    /// into the box.
    QComboBox* ColorBox(ControlName name, TextView label, ControlName swatch);

    /// A text box with up-down buttons that step a number between the two bounds.
    orvane::NumberBox* NumberBox(ControlName name, TextView label, int lowest, int highest,
                                 TextView tip = {}, TextView unit = {});

    /// Makes the field of the last row as narrow as a number; gives the field.
    template <class Field>
    Field* Narrow(Field* field)
    {
        KeepNarrow(*field);
        return field;
    }

    /// A slider between two words.
    QSlider* Slider(ControlName name, TextView label, TextView low, TextView high,
                    const SliderRange& range, TextView tip = {});

    /// A field that shows `caption` until a colour is picked, and gives it in the notation.
    orvane::ColorSwatch* ColorSwatch(ControlName name, TextView label,
                                     ColorNotation notation = ColorNotation::Hash,
                                     TextView caption = u"Click to Select Color",
                                     TextView tip = u"Click here to select a color");

    /// Font, size and style as `cboFont`, `cboFontSize` and `cboFontStyle`, and the button that
    /// opens the font dialog.
    void FontRow(ControlName button = "cmdMoreFonts");

    ActingList* ListBox(ControlName name, TextView label, std::span<const TextView> items);
    QCheckBox* CheckBox(ControlName name, TextView caption, TextView tip = {});

    /// One option of a group, with a description beside it that selects it as well, and with a
    /// picture of the program's resources, such as "sample_date".
    QRadioButton* Option(ControlName group, int index, TextView caption, TextView description = {},
                         const QString& picture = {});

    /// The options of a group, one below the other.
    void OptionGroup(ControlName group, std::initializer_list<TextView> captions);

    /// A text of the window that the author does not see.
    QLineEdit* HiddenText(ControlName name);

    /// A read-only box of page code.
    orvane::MultiLineBox* CodeBox(ControlName name, TextView accessibleName);

    /// A paragraph of words.
    QLabel* Note(TextView words, ControlName name = {});

    /// A picture of the program's resources, such as "status_bar_sample".
    QLabel* Picture(const QString& name, QSize size);

    /// A frame "Example" with a picture of what the effect looks like.
    void Example(const QString& picture, QSize size);

    /// A button, to be put into a row.
    QPushButton* Button(ControlName name, TextView caption, TextView tip = {});

    /// A row of buttons, as wide as their captions.
    void Buttons(std::initializer_list<QPushButton*> buttons);

    /// Any widgets in one row under a label, which it gives (null when it has no words); the first
    /// one takes the room.
    QLabel* Row(TextView label, std::initializer_list<QWidget*> widgets);

    /// A framed group with a caption; the returned builder adds to it.
    PageBuilder Frame(TextView caption, ControlName name = {});

    /// A row that takes the room that is left, or a stretch of nothing when null; gives
    /// what stands there.
    QWidget* Fill(QWidget* widget = nullptr);

    QWidget* Page() const { return m_page; }

private:
    void FieldRow(QWidget* field, ControlName name, TextView label, TextView tip, QWidget* beside);
    QLabel* Caption(TextView label, QWidget* field);
    QLabel* Words(TextView words);
    QHBoxLayout* LastLine() const;
    void KeepNarrow(QWidget& field);

    QWidget* m_page;
    QFormLayout* m_rows;
    Workbench* m_bench;
};

} // namespace orvane
