#pragma once

#include "windows/controls.h"

class QComboBox;

namespace orvane {

class Dialogs;
class PageBuilder;

/// Adds the three rows in which an author chooses a font, `cboFont`, `cboFontSize` and
/// `cboFontStyle`, and a button of the name `button` that opens the font dialog.
/// `sizeUnit` stands to the right of the size.
void AddFontRows(PageBuilder& page, Dialogs& dialogs, ControlName button, TextView sizeUnit);

} // namespace orvane
