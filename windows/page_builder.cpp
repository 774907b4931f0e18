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

namespace orvane {

namespace {

constexpr int numberLetters = 14;  ///< width of a field for a number
constexpr int addressLetters = 32; ///< least width of a field for an address

} // namespace

PageBuilder::PageBuilder(QWidget* page, Workbench* bench)
    : m_page(page), m_rows(new QFormLayout(page)), m_bench(bench)
{
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
}

QLabel* PageBuilder::Words(TextView words)
{
    if (words.empty())
        return nullptr;
    auto* label = new QLabel(ToQt(words), m_page);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A field's label, which names it to a screen reader as well.
QLabel* PageBuilder::Caption(TextView label, QWidget* field)
{
    auto* caption = new QLabel(ToQt(label), m_page);
    caption->setBuddy(field);
    field->setAccessibleName(SpokenName(label));
    return caption;
}

void PageBuilder::FieldRow(QWidget* field, ControlName name, TextView label, TextView tip,
                           QWidget* beside)
{
    field->setObjectName(ToQt(name));
    field->setToolTip(ToQt(tip));
    if (beside == nullptr)
        Row(label, {field});
    else
        Row(label, {field, beside});
}

QLineEdit* PageBuilder::TextBox(ControlName name, TextView label, TextView tip, TextView unit)
{
    auto* box = MakeTextBox(m_page);
    FieldRow(box, name, label, tip, Words(unit));
    return box;
}

QLineEdit* PageBuilder::TextBoxWithButton(ControlName name, TextView label, QPushButton* button,
                                          TextView tip)
{
    auto* box = MakeTextBox(m_page);
    FieldRow(box, name, label, tip, button);
    return box;
}

orvane::MultiLineBox* PageBuilder::MultiLineBox(ControlName name, TextView label, TextView tip)
{
    auto* box = new orvane::MultiLineBox(m_page);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(4 * box->fontMetrics().lineSpacing());
    FieldRow(box, name, label, tip, nullptr);
    return box;
}

FileNameBox* PageBuilder::LockedTextBox(ControlName name, TextView label, TextView tip)
{
    auto* box = new FileNameBox(m_bench->Settings, m_bench->Dialogs, m_page);
    FieldRow(box, name, label, tip, nullptr);
    return box;
}

QPushButton* PageBuilder::BrowseButton(QLineEdit* field, BrowseRule rule)
{
    QPushButton* button = MakeBrowseButton(*m_bench, field, std::move(rule));
    button->setParent(m_page);
    return button;
}

FileNameBox* PageBuilder::LockedBrowseRow(ControlName name, TextView label, TextView tip,
                                          BrowseRule rule)
{
    auto* box = new FileNameBox(m_bench->Settings, m_bench->Dialogs, m_page);
    FieldRow(box, name, label, tip, BrowseButton(box, std::move(rule)));
    return box;
}

QLineEdit* PageBuilder::BrowseRow(ControlName name, TextView label, TextView tip, BrowseRule rule,
                                  TextView unit)
{
    auto* box = MakeTextBox(m_page);
    box->setMinimumWidth(addressLetters * box->fontMetrics().averageCharWidth());
    QPushButton* button = BrowseButton(box, std::move(rule));
    if (unit.empty()) {
        FieldRow(box, name, label, tip, button);
        return box;
    }
    auto* behind = new QWidget(m_page);
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
    QComboBox* box = MakeComboBox(items, isEditable, m_page);
    FieldRow(box, name, label, tip, Words(unit));
    return box;
}

QComboBox* PageBuilder::ColorBox(ControlName name, TextView label, ControlName swatch)
{
    QComboBox* box = ComboBox(name, label, BasicColors, true);
    auto* picker = new orvane::ColorSwatch(u"Click to Select Color", ColorNotation::Channels,
                                           m_bench->Dialogs, m_page);
    picker->setObjectName(ToQt(swatch));
    picker->setAccessibleName(SpokenName(label));
    picker->setToolTip(QStringLiteral("Click here to select a color"));
    QObject::connect(picker, &orvane::ColorSwatch::Picked, box,
                     [box, picker] { SetComboText(*box, picker->Value()); });
    LastLine()->addWidget(picker);
    return box;
}

QHBoxLayout* PageBuilder::LastLine() const
{
    QLayoutItem* field = m_rows->itemAt(m_rows->rowCount() - 1, QFormLayout::FieldRole);
    return static_cast<QHBoxLayout*>(field->layout());
}

void PageBuilder::KeepNarrow(QWidget& field)
{
    field.setFixedWidth(numberLetters * field.fontMetrics().averageCharWidth());
    LastLine()->setStretchFactor(&field, 0);
    LastLine()->addStretch(1);
}

orvane::NumberBox* PageBuilder::NumberBox(ControlName name, TextView label, int lowest, int highest,
                                          TextView tip, TextView unit)
{
    auto* box = new orvane::NumberBox(name, lowest, highest, m_page);
    box->setToolTip(ToQt(tip));
    if (unit.empty())
        Row(label, {box, box->UpDown()});
    else
        Row(label, {box, box->UpDown(), Words(unit)});
    return Narrow(box);
}

QSlider* PageBuilder::Slider(ControlName name, TextView label, TextView low, TextView high,
                             const SliderRange& range, TextView tip)
{
    QSlider* slider = MakeSlider(range, m_page);
    slider->setObjectName(ToQt(name));
    slider->setToolTip(ToQt(tip));
    auto* line = new QHBoxLayout;
    line->addWidget(Words(low));
    line->addWidget(slider, 1);
    line->addWidget(Words(high));
    m_rows->addRow(Caption(label, slider), line);
    return slider;
}

orvane::ColorSwatch* PageBuilder::ColorSwatch(ControlName name, TextView label,
                                              ColorNotation notation, TextView caption,
                                              TextView tip)
{
    auto* swatch = new orvane::ColorSwatch(caption, notation, m_bench->Dialogs, m_page);
    FieldRow(swatch, name, label, tip, nullptr);
    return swatch;
}

void PageBuilder::FontRow(ControlName button)
{
    AddFontRows(*this, m_bench->Dialogs, button);
}

ActingList* PageBuilder::ListBox(ControlName name, TextView label, std::span<const TextView> items)
{
    auto* box = new ActingList(m_page);
    box->setObjectName(ToQt(name));
    for (const TextView item : items)
        box->addItem(ToQt(item));
    if (!label.empty())
        m_rows->addRow(Caption(label, box));
    Fill(box);
    return box;
}

QCheckBox* PageBuilder::CheckBox(ControlName name, TextView caption, TextView tip)
{
    QCheckBox* box = MakeCheckBox(caption, m_page);
    box->setObjectName(ToQt(name));
    box->setToolTip(ToQt(tip));
    m_rows->addRow(box);
    return box;
}

QRadioButton* PageBuilder::Option(ControlName group, int index, TextView caption,
                                  TextView description, const QString& picture)
{
    auto* option = new QRadioButton(ToQt(caption), m_page);
    option->setObjectName(MemberName(group, index));
    m_rows->addRow(option);
    if (description.empty())
        return option;
    QLabel* words = MakeOptionWords(description, option, m_page);
    if (picture.isEmpty())
        m_rows->addRow(words);
    else
        Row({}, {words, MakePicture(picture, {96, 64}, m_page)});
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
    QLineEdit* box = MakeTextBox(m_page);
    box->setObjectName(ToQt(name));
    box->hide();
    return box;
}

orvane::MultiLineBox* PageBuilder::CodeBox(ControlName name, TextView accessibleName)
{
    orvane::MultiLineBox* box = MakeCodeBox(m_page);
    box->setObjectName(ToQt(name));
    box->setAccessibleName(ToQt(accessibleName));
    Fill(box);
    return box;
}

QLabel* PageBuilder::Note(TextView words, ControlName name)
{
    auto* note = new QLabel(ToQtLines(words), m_page);
    note->setObjectName(ToQt(name));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    m_rows->addRow(note);
    return note;
}

QLabel* PageBuilder::Picture(const QString& name, QSize size)
{
    QLabel* picture = MakePicture(name, size, m_page);
    m_rows->addRow(picture);
    return picture;
}

void PageBuilder::Example(const QString& picture, QSize size)
{
    Frame(u"Example").Picture(picture, size);
}

QPushButton* PageBuilder::Button(ControlName name, TextView caption, TextView tip)
{
    QPushButton* button = MakeButton(name, caption, tip);
    button->setParent(m_page);
    return button;
}

void PageBuilder::Buttons(std::initializer_list<QPushButton*> buttons)
{
    auto* line = new QHBoxLayout;
    for (QPushButton* button : buttons)
        line->addWidget(button);
    line->addStretch(1);
    m_rows->addRow(line);
}

QLabel* PageBuilder::Row(TextView label, std::initializer_list<QWidget*> widgets)
{
    auto* line = new QHBoxLayout;
    for (QWidget* widget : widgets)
        line->addWidget(widget, widget == *widgets.begin() ? 1 : 0);
    if (label.empty()) {
        m_rows->addRow(line);
        return nullptr;
    }
    QLabel* caption = Caption(label, *widgets.begin());
    m_rows->addRow(caption, line);
    return caption;
}

PageBuilder PageBuilder::Frame(TextView caption, ControlName name)
{
    auto* frame = new QGroupBox(ToQt(caption), m_page);
    frame->setObjectName(ToQt(name));
    m_rows->addRow(frame);
    return PageBuilder(frame, m_bench);
}

QWidget* PageBuilder::Fill(QWidget* widget)
{
    if (widget == nullptr)
        widget = new QWidget(m_page);
    QSizePolicy policy = widget->sizePolicy();
    policy.setVerticalPolicy(QSizePolicy::Expanding);
    policy.setVerticalStretch(1);
    widget->setSizePolicy(policy);
    m_rows->addRow(widget);
    return widget;
}

} // namespace orvane
