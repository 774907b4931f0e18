#include "windows/field_controls.h"

#include "windows/color_list.h"
#include "windows/color_swatch.h"
#include "windows/hidden_rows.h"
#include "windows/multi_line_box.h"
#include "windows/number_box.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSlider>

#include <stdexcept>
#include <utility>

namespace orvane {

namespace {

QRadioButton* Member(const QWidget& window, ControlName group, int index)
{
    return window.findChild<QRadioButton*>(MemberName(group, index));
}

int ChosenOption(const QWidget& window, ControlName group)
{
    for (int i = 0; const auto* option = Member(window, group, i); ++i)
        if (option->isChecked())
            return i;
    return -1;
}

/// A group in which nothing is chosen must let go of its options one by one.
void ChooseOption(const QWidget& window, ControlName group, int chosen)
{
    for (int i = 0; auto* option = Member(window, group, i); ++i) {
        if (i == chosen)
            option->setChecked(true);
        if (chosen >= 0)
            continue;
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

RowListPanel* PanelOf(const QWidget& window, ControlName list)
{
    for (auto* panel : window.findChildren<RowListPanel*>())
        if (panel->Name() == list)
            return panel;
    return nullptr;
}

HiddenRows* HiddenRowsOf(const QWidget& window, ControlName list)
{
    return dynamic_cast<HiddenRows*>(window.findChild<QWidget*>(ToQt(list)));
}

void SelectText(QListWidget& list, TextView text)
{
    const auto items = list.findItems(ToQt(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
    list.setCurrentItem(items.isEmpty() ? nullptr : items.constFirst());
}

Text TextOf(const QWidget& control)
{
    if (const auto* swatch = qobject_cast<const ColorSwatch*>(&control))
        return swatch->Value();
    if (const auto* line = qobject_cast<const QLineEdit*>(&control))
        return FromQt(line->text());
    if (const auto* box = qobject_cast<const MultiLineBox*>(&control))
        return box->Words();
    if (const auto* combo = qobject_cast<const QComboBox*>(&control))
        return ComboText(*combo);
    if (const auto* list = qobject_cast<const QListWidget*>(&control)) {
        // The row that the keyboard stands on need not be selected.
        const auto selected = list->selectedItems();
        return selected.isEmpty() ? Text() : FromQt(selected.constFirst()->text());
    }
    throw std::logic_error("a field's control shows no value");
}

void SetText(QWidget& control, TextView text)
{
    if (auto* swatch = qobject_cast<ColorSwatch*>(&control))
        swatch->SetValue(text);
    else if (auto* line = qobject_cast<QLineEdit*>(&control))
        line->setText(ToQt(text));
    else if (auto* box = qobject_cast<MultiLineBox*>(&control))
        box->SetWords(text);
    else if (auto* combo = qobject_cast<QComboBox*>(&control))
        SetComboText(*combo, text);
    else if (auto* list = qobject_cast<QListWidget*>(&control))
        SelectText(*list, text);
}

} // namespace

bool FieldControls::Has(ControlName name) const
{
    return m_window.findChild<QWidget*>(ToQt(name)) != nullptr ||
           Member(m_window, name, 0) != nullptr;
}

void FieldControls::TakeBounds(const FieldName& name)
{
    auto* control = m_window.findChild<QWidget*>(ToQt(name.Name));
    if (!name.Bounds)
        return;
    if (auto* number = qobject_cast<NumberBox*>(control))
        number->SetBounds(*name.Bounds);
    if (auto* slider = qobject_cast<QSlider*>(control))
        SetSliderRange(*slider, *name.Bounds);
}

RowTexts FieldControls::Rows(ControlName name) const
{
    if (const auto* panel = PanelOf(m_window, name))
        return panel->Rows();
    if (const auto* hidden = HiddenRowsOf(m_window, name))
        return hidden->Rows;
    throw std::logic_error("a field has no list");
}

FieldTexts FieldControls::Texts(ControlName name) const
{
    if (Member(m_window, name, 0) != nullptr)
        return TextsOf(ChosenOption(m_window, name));
    const auto* control = m_window.findChild<QWidget*>(ToQt(name));
    if (control == nullptr)
        throw std::logic_error("a field has no control");
    if (const auto* tick = qobject_cast<const QCheckBox*>(control))
        return TextsOf(tick->isChecked());
    if (const auto* slider = qobject_cast<const QSlider*>(control))
        return TextsOf(slider->value());
    if (const auto* colors = qobject_cast<const ColorList*>(control))
        return colors->Colors();
    return {TextOf(*control)};
}

void FieldControls::ShowRows(ControlName name, RowTexts rows)
{
    if (auto* panel = PanelOf(m_window, name))
        panel->SetRows(std::move(rows));
    else if (auto* hidden = HiddenRowsOf(m_window, name))
        hidden->Rows = std::move(rows);
}

void FieldControls::Show(ControlName name, const FieldTexts& texts)
{
    auto* control = m_window.findChild<QWidget*>(ToQt(name));
    if (Member(m_window, name, 0) != nullptr) {
        int chosen = -1;
        SetField(chosen, texts);
        ChooseOption(m_window, name, chosen);
    } else if (auto* tick = qobject_cast<QCheckBox*>(control)) {
        bool isOn = tick->isChecked();
        SetField(isOn, texts);
        tick->setChecked(isOn);
    } else if (auto* slider = qobject_cast<QSlider*>(control)) {
        int value = slider->value();
        SetField(value, texts);
        slider->setValue(value);
    } else if (auto* colors = qobject_cast<ColorList*>(control)) {
        colors->SetColors(texts);
    } else if (control != nullptr && !texts.empty()) {
        SetText(*control, texts.front());
    }
}

} // namespace orvane
