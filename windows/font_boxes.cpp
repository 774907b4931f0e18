#include "windows/font_boxes.h"

#include "core/pick_lists.h"
#include "services/font_fields.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QPushButton>

namespace orvane {

void AddFontRows(PageBuilder& page, Dialogs& dialogs, ControlName button, TextView sizeUnit)
{
    QComboBox* font = page.ComboBox("cboFont", u"Font:", pageFonts, true);
    QComboBox* size =
        page.Narrow(page.ComboBox("cboFontSize", u"Font size:", FontSizes, true, {}, sizeUnit));
    QComboBox* style = page.ComboBox("cboFontStyle", u"Font style:", fontStyles, true);
    QPushButton* more = page.Button(button, u"more...");
    page.Buttons({more});
    QObject::connect(more, &QPushButton::clicked, more, [&dialogs, font, size, style] {
        const FontFields fields = PickFontFields(dialogs, {.Font = FromQt(font->currentText()),
                                                           .Size = FromQt(size->currentText()),
                                                           .Style = FromQt(style->currentText())});
        SetComboText(*font, fields.Font);
        SetComboText(*size, fields.Size);
        SetComboText(*style, fields.Style);
    });
}

} // namespace orvane
