#include "windows/page_builder.h"

#include "core/pick_lists.h"
#include "windows/boxes.h"
#include "windows/color_swatch.h"
#include "windows/font_boxes.h"
#include "windows/multi_line_box.h"
#include "windows/number_box.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include <limits>

namespace orvane {

namespace {

constexpr int addressLetters = 32; ///< least width of a field for an address

} // namespace

PageBuilder::PageBuilder(QWidget* page, Workbench* bench) : PageRows(page), m_bench(bench) {}

QLineEdit* PageBuilder::TextBox(ControlName name, TextView label, TextView tip, TextView unit)
{
    auto* box = MakeTextBox(Page());
    FieldRow(box, name, label, tip, Words(unit));
    return box;
}

QLineEdit* PageBuilder::TextBoxWithButton(ControlName name, TextView label, QPushButton* button,
                                          TextView tip)
{
    auto* box = MakeTextBox(Page());
    FieldRow(box, name, label, tip, button);
    return box;
}

orvane::MultiLineBox* PageBuilder::MultiLineBox(ControlName name, TextView label, TextView tip)
{
    auto* box = new orvane::MultiLineBox(Page());
    box->setTabChangesFocus(true);
    LeaveAltToAccessKeys(*box);
    box->setMinimumHeight(4 * box->fontMetrics().lineSpacing());
    FieldRow(box, name, label, tip, nullptr);
    return box;
}

FileNameBox* PageBuilder::LockedTextBox(ControlName name, TextView label, TextView tip)
{
    auto* box = new FileNameBox(m_bench->Settings, m_bench->Dialogs, Page());
    FieldRow(box, name, label, tip, nullptr);
    return box;
}

QPushButton* PageBuilder::BrowseButton(QLineEdit* field, BrowseRule rule)
{
    QPushButton* button = MakeBrowseButton(*m_bench, field, std::move(rule));
    button->setParent(Page());
    return button;
}

FileNameBox* PageBuilder::LockedBrowseRow(ControlName name, TextView label, TextView tip,
                                          BrowseRule rule)
{
    auto* box = new FileNameBox(m_bench->Settings, m_bench->Dialogs, Page());
    FieldRow(box, name, label, tip, BrowseButton(box, std::move(rule)));
    return box;
}

QLineEdit* PageBuilder::BrowseRow(ControlName name, TextView label, TextView tip, BrowseRule rule,
                                  TextView unit)
{
    auto* box = MakeTextBox(Page());
    box->setMinimumWidth(addressLetters * box->fontMetrics().averageCharWidth());
    QPushButton* button = BrowseButton(box, std::move(rule));
    if (unit.empty()) {
        FieldRow(box, name, label, tip, button);
        return box;
    }
    auto* behind = new QWidget(Page());
    auto* line = new QHBoxLayout(behind);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(Words(unit));
    line->addWidget(button);
    FieldRow(box, name, label, tip, behind);
    return box;
}

QComboBox* PageBuilder::ComboBox(ControlName name, TextView label, std::span<const TextView> items,
                                 bool isEditable, TextView tip, TextView unit)
{
    QComboBox* box = MakeComboBox(items, isEditable, Page());
    FieldRow(box, name, label, tip, Words(unit));
    return box;
}

QComboBox* PageBuilder::ChoiceBox(ControlName name, TextView label,
                                  std::span<const ChoiceItem> items, TextView tip, TextView unit)
{
    QComboBox* box = MakeChoiceBox(items, false, Page());
    FieldRow(box, name, label, tip, Words(unit));
    return box;
}

QComboBox* PageBuilder::OpenChoiceBox(ControlName name, TextView label,
                                      std::span<const ChoiceItem> items, TextView tip,
                                      TextView unit)
{
    QComboBox* box = MakeChoiceBox(items, true, Page());
    FieldRow(box, name, label, tip, Words(unit));
    return box;
}

QComboBox* PageBuilder::ColorBox(ControlName name, TextView label, ControlName swatch)
{
    QComboBox* box = ComboBox(name, label, BasicColors, true);
    auto* picker = new orvane::ColorSwatch(u"Click to Select Color", ColorNotation::Channels,
                                           m_bench->Dialogs, Page());
    picker->setObjectName(ToQt(swatch));
    picker->setAccessibleName(SpokenName(label));
    picker->setToolTip(QStringLiteral("Click here to select a color"));
    QObject::connect(picker, &orvane::ColorSwatch::Picked, box,
                     [box, picker] { SetComboText(*box, picker->Value()); });
    QObject::connect(picker, &orvane::ColorSwatch::WasUnset, box,
                     [box] { SetComboText(*box, {}); });
    LastLine()->addWidget(picker);
    return box;
}

orvane::NumberBox* PageBuilder::NumberBox(ControlName name, TextView label, int lowest, int highest,
                                          TextView tip, TextView unit)
{
    auto* box = new orvane::NumberBox(
        name, {static_cast<double>(lowest), static_cast<double>(highest)}, Page());
    box->setToolTip(ToQt(tip));
    if (unit.empty())
        Row(label, {box, box->UpDown()});
    else
        Row(label, {box, box->UpDown(), Words(unit)});
    return Narrow(box);
}

orvane::NumberBox* PageBuilder::NumberBox(ControlName name, TextView label, TextView tip,
                                          TextView unit)
{
    return NumberBox(name, label, 0, std::numeric_limits<int>::max(), tip, unit);
}

QSlider* PageBuilder::Slider(ControlName name, TextView label, TextView low, TextView high,
                             const SliderRange& range, TextView tip)
{
    QSlider* slider = MakeSlider(range, Page());
    slider->setObjectName(ToQt(name));
    slider->setToolTip(ToQt(tip));
    auto* line = new QHBoxLayout;
    line->addWidget(Words(low));
    line->addWidget(slider, 1);
    line->addWidget(Words(high));
    Rows().addRow(Caption(label, slider), line);
    return slider;
}

orvane::ColorSwatch* PageBuilder::ColorSwatch(ControlName name, TextView label,
                                              ColorNotation notation, TextView caption,
                                              TextView tip)
{
    auto* swatch = new orvane::ColorSwatch(caption, notation, m_bench->Dialogs, Page());
    FieldRow(swatch, name, label, tip, nullptr);
    return swatch;
}

void PageBuilder::FontRow(ControlName button, TextView sizeUnit)
{
    QComboBox* font = ComboBox("cboFont", u"Font:", pageFonts, true);
    QComboBox* size = Narrow(ComboBox("cboFontSize", u"Font size:", FontSizes, true, {}, sizeUnit));
    QComboBox* style = ComboBox("cboFontStyle", u"Font style:", fontStyles, true);
    QPushButton* more = Button(button, u"more...");
    Buttons({more});
    PickFontBy(*more, m_bench->Dialogs, *font, *size, *style);
}

ActingList* PageBuilder::ListBox(ControlName name, TextView label, std::span<const TextView> items)
{
    auto* box = new ActingList(Page());
    box->setObjectName(ToQt(name));
    for (const TextView item : items)
        box->addItem(ToQt(item));
    if (!label.empty())
        Rows().addRow(Caption(label, box));
    Fill(box);
    return box;
}

QCheckBox* PageBuilder::CheckBox(ControlName name, TextView caption, TextView tip)
{
    QCheckBox* box = MakeCheckBox(caption, Page());
    box->setObjectName(ToQt(name));
    box->setToolTip(ToQt(tip));
    Rows().addRow(box);
    return box;
}

QRadioButton* PageBuilder::Option(ControlName group, int index, TextView caption,
                                  TextView description, const QString& picture)
{
    QRadioButton* option = MakeOption(caption, Page());
    option->setObjectName(MemberName(group, index));
    Rows().addRow(option);
    if (description.empty())
        return option;
    QLabel* words = MakeOptionWords(description, option, Page());
    if (picture.isEmpty())
        Rows().addRow(words);
    else
        Row({}, {words, MakePicture(picture, {96, 64}, Page())});
    return option;
}

void PageBuilder::OptionGroup(ControlName group, std::initializer_list<TextView> captions)
{
    int index = 0;
    for (const TextView caption : captions)
        Option(group, index++, caption);
}

QLineEdit* PageBuilder::HiddenText(ControlName name)
{
    QLineEdit* box = MakeTextBox(Page());
    box->setObjectName(ToQt(name));
    box->hide();
    return box;
}

orvane::MultiLineBox* PageBuilder::CodeBox(ControlName name, TextView accessibleName)
{
    orvane::MultiLineBox* box = MakeCodeBox(Page());
    box->setObjectName(ToQt(name));
    box->setAccessibleName(ToQt(accessibleName));
    Fill(box);
    return box;
}

void PageBuilder::Example(const QString& picture, QSize size)
{
    Frame(u"Example").Picture(picture, size);
}

PageBuilder PageBuilder::Frame(TextView caption, ControlName name)
{
    auto* frame = new QGroupBox(ToQt(caption), Page());
    frame->setObjectName(ToQt(name));
    Rows().addRow(frame);
    return PageBuilder(frame, m_bench);
}

} // namespace orvane
