#pragma once

#include "services/font_fields.h"
#include "windows/page_builder.h"

namespace orvane {

/// The three rows in which an author chooses a font, and the button that opens the font dialog.
class FontBoxes
{
public:
    FontBoxes(PageBuilder& page, Dialogs& dialogs,
              const QString& buttonName = QStringLiteral("cmdMoreFonts"));

    FontFields Fields() const;
    void SetFields(const FontFields& fields);

private:
    QComboBox* cboFont;
    QComboBox* cboFontSize;
    QComboBox* cboFontStyle;
};

} // namespace orvane
