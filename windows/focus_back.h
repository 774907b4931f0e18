#pragma once

class QDialog;

namespace orvane {

/// Gives the focus to the window in front once the dialog closes. Most window managers do so too;
/// without one, keys would go nowhere.
void GiveFocusBack(const QDialog& dialog);

} // namespace orvane
