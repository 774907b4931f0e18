#pragma once

class QComboBox;
class QPushButton;

namespace orvane {

class Dialogs;

/// Lets the button open the font dialog and show the chosen font in the three boxes. The boxes and
/// the dialogs must outlive the button.
void PickFontBy(QPushButton& button, Dialogs& dialogs, QComboBox& font, QComboBox& size,
                QComboBox& style);

} // namespace orvane
