#include "windows/font_boxes.h"

#include "core/pick_lists.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QPushButton>

namespace orvane {

FontBoxes::FontBoxes(PageBuilder& page, Dialogs& dialogs, const QString& buttonName)
    : cboFont(page.ComboBox(QStringLiteral("cboFont"), u"Font:", PageFonts, true)),
      cboFontSize(page.ComboBox(QStringLiteral("cboFontSize"), u"Font size:", FontSizes, true)),
      cboFontStyle(page.ComboBox(QStringLiteral("cboFontStyle"), u"Font style:", FontStyles, true))
{
    QPushButton* more = page.Button(buttonName, u"more...");
    page.Buttons({more});
    QObject::connect(more, &QPushButton::clicked, more, [boxes = *this, &dialogs]() mutable {
        boxes.SetFields(PickFontFields(dialogs, boxes.Fields()));
    });
}

FontFields FontBoxes::Fields() const
{
    return {.Font = FromQt(cboFont->currentText()),
            .Size = FromQt(cboFontSize->currentText()),
            .Style = FromQt(cboFontStyle->currentText())};
}

void FontBoxes::SetFields(const FontFields& fields)
{
    cboFont->setCurrentText(ToQt(fields.Font));
    cboFontSize->setCurrentText(ToQt(fields.Size));
    cboFontStyle->setCurrentText(ToQt(fields.Style));
}

} // namespace orvane
