#pragma once

#include "core/fields.h"
#include "core/workbench.h"

class QWidget;

namespace orvane {

/// The controls of a window by the names of the fields that they show. A field's value is the text
/// of a box, the selected text of a list, a tick, the place of a slider, the chosen one of a group
/// of options, the colour of a swatch or the rows of a list; the field "Required" is the shared
/// table of files to copy.
class FieldControls
{
public:
    FieldControls(QWidget& window, Workbench& bench) : m_window(window), m_bench(bench) {}

    /// What the field's control holds. Expects a field that has one; throws std::logic_error for
    /// any other.
    FieldTexts Read(ControlName name) const;

    /// Puts a value into the field's control; numbers outside a slider's range are its nearer end.
    void Write(ControlName name, const FieldTexts& texts);

    /// Whether the window has a control for the field.
    bool Has(ControlName name) const;

private:
    QWidget& m_window;
    Workbench& m_bench;
};

} // namespace orvane
