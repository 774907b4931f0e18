#pragma once

#include "services/hints.h"

#include <map>
#include <string>

class QLabel;
class QWidget;

namespace orvane {

/// The lines in which a window shows hints, each below its field in the same row.
class HintLines
{
public:
    /// The window must outlive the lines.
    explicit HintLines(QWidget& window) : m_window(window) {}

    /// Shows these hints and takes away all others. The line of the field "txtURL" has the object
    /// name "lblHint(txtURL)"; a screen reader says its words with the field. A hint on a field
    /// that is hidden, or that stands in no form layout, is not shown.
    void Show(const std::vector<Hint>& hints);

private:
    void ShowLine(ControlName field, TextView words);

    QWidget& m_window;
    std::map<std::string, QLabel*, std::less<>> m_lines; ///< by the names of their fields
};

} // namespace orvane
