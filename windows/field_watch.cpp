#include "windows/field_watch.h"

#include "windows/color_list.h"
#include "windows/color_swatch.h"
#include "windows/controls.h"
#include "windows/row_list_panel.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSlider>

namespace orvane {

FieldWatch::FieldWatch(QWidget& window) : m_window(window)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &FieldWatch::Settled);
}

void FieldWatch::Add(ControlName field)
{
    const auto watch = [this](auto* control, auto signal) {
        connect(control, signal, this, [this] {
            m_soon.start();
            emit Changed();
        });
    };
    for (int i = 0; auto* option = m_window.findChild<QAbstractButton*>(MemberName(field, i)); ++i)
        watch(option, &QAbstractButton::toggled);
    auto* control = m_window.findChild<QWidget*>(ToQt(field));
    for (auto* outer = control; outer != nullptr; outer = outer->parentWidget())
        if (auto* rows = qobject_cast<RowListPanel*>(outer))
            return watch(rows, &RowListPanel::RowsChanged);
    if (auto* swatch = qobject_cast<ColorSwatch*>(control)) {
        watch(swatch, &ColorSwatch::Picked);
        watch(swatch, &ColorSwatch::WasUnset);
    } else if (auto* colors = qobject_cast<ColorList*>(control)) {
        watch(colors, &ColorList::ColorsChanged);
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        watch(button, &QAbstractButton::toggled);
    } else if (auto* line = qobject_cast<QLineEdit*>(control)) {
        watch(line, &QLineEdit::textChanged);
    } else if (auto* box = qobject_cast<QPlainTextEdit*>(control)) {
        watch(box, &QPlainTextEdit::textChanged);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        watch(combo, &QComboBox::currentTextChanged);
    } else if (auto* slider = qobject_cast<QSlider*>(control)) {
        watch(slider, &QSlider::valueChanged);
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        watch(list, &QListWidget::itemSelectionChanged);
    }
}

} // namespace orvane
