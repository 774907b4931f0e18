#pragma once

#include "core/fields.h"

class QWidget;

namespace orvane {

/// Reads and writes the controls of a window by the names of the fields that they show. A field's
/// value is the text of a box, the selected text of a list, the state of a check box, the number of
/// a slider, the index of the chosen option button, the colour of a swatch, those of several, or
/// the rows of a list.
/// Of an item of a combo box that has a value behind its text, the value counts.
class FieldControls
{
public:
    explicit FieldControls(QWidget& window) : m_window(window) {}

    /// Sets the value from what the field's control holds. Expects a field that has one; throws
    /// std::logic_error for any other.
    template <class Value>
    void Read(ControlName name, Value& value) const
    {
        if constexpr (isRows<Value>)
            SetRows(value, Rows(name));
        else
            SetField(value, Texts(name));
    }

    /// Shows a value in the field's control, a number outside of a slider's range as the nearer end
    /// of the range; does nothing for a field without a control or for a choice without an option.
    template <class Value>
    void Write(ControlName name, const Value& value)
    {
        if constexpr (isRows<Value>)
            ShowRows(name, RowTextsOf(value));
        else
            Show(name, TextsOf(value));
    }

    /// Gives the number box or the slider of the field its bounds; does nothing without either.
    void TakeBounds(const FieldName& name);

    /// Whether the window has a control for the field.
    bool Has(ControlName name) const;

private:
    RowTexts Rows(ControlName name) const;
    FieldTexts Texts(ControlName name) const;
    void ShowRows(ControlName name, RowTexts rows);
    void Show(ControlName name, const FieldTexts& texts);

    QWidget& m_window;
};

} // namespace orvane
