#include "effects/page/popup_alert_form.h"

#include "windows/multi_line_box.h"

#include <QComboBox>

namespace orvane {

PopupAlertForm::PopupAlertForm(Workbench& bench, QWidget* parent)
    : EffectForm("PopupAlert", bench, parent)
{
    PageBuilder page = AddPage({u"Popup Alert box effect",
                                u"Create a Popup Alert box when the user loads your Web page.  "
                                u"Choose from three different PopUp box styles."});
    std::array<TextView, alertTypes.size()> types;
    for (std::size_t i = 0; i < types.size(); ++i)
        types[i] = alertTypes[i].Item;
    auto* type = page.ComboBox("cmboAlertType", u"PopUp Alert box type:", types, false,
                               u"This specifies the type of Alert box to be displayed");
    page.Note({}, "lblAlertTypeDesc");
    auto* text =
        page.MultiLineBox("txtAlertText", u"Popup Alert box text:",
                          u"This is the text that will be displayed in the Popup Alert box");
    page.Example(QStringLiteral("popup_alert_sample"), {320, 120});
    connect(type, &QComboBox::currentIndexChanged, this,
            [text] { text->setFocus(Qt::OtherFocusReason); });
    AddButtons(Buttons::OnePage);
}

} // namespace orvane
