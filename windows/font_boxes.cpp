#include "windows/font_boxes.h"

#include "services/font_fields.h"
#include "windows/boxes.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QPushButton>

namespace orvane {

void PickFontBy(QPushButton& button, Dialogs& dialogs, QComboBox& font, QComboBox& size,
                QComboBox& style)
{
    QObject::connect(&button, &QPushButton::clicked, &button, [&dialogs, &font, &size, &style] {
        const FontFields fields = PickFontFields(dialogs, {.Font = FromQt(font.currentText()),
                                                           .Size = FromQt(size.currentText()),
                                                           .Style = FromQt(style.currentText())});
        SetComboText(font, fields.Font);
        SetComboText(size, fields.Size);
        SetComboText(style, fields.Style);
    });
}

} // namespace orvane
