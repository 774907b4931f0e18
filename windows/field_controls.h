#pragma once

#include "core/fields.h"
#include "core/workbench.h"

class QWidget;

namespace orvane {

/// Reads and writes the controls of a window by the names of the fields that they show. A field's
/// value is the text of a box, the selected text of a list, the state of a check box, the number of
/// a slider, the index of the chosen option button, the colour of a swatch or the rows of a list;
/// the field "Required" is the shared table of files to copy.
class FieldControls
{
public:
    FieldControls(QWidget& window, Workbench& bench) : m_window(window), m_bench(bench) {}

    /// What the field's control holds. Expects a field that has one; throws std::logic_error for
    /// any other.
    FieldTexts Read(ControlName name) const;

    /// Shows a value in the field's control, a number outside of a slider's range as the nearer end
    /// of the range; does nothing for a field without a control or for a choice without an option.
    void Write(ControlName name, const FieldTexts& texts);

    /// Whether the window has a control for the field.
    bool Has(ControlName name) const;

private:
    QWidget& m_window;
    Workbench& m_bench;
};

} // namespace orvane
