#include "windows/control_looks.h"

#include "windows/controls.h"
#include "windows/file_name_box.h"
#include "windows/qt_text.h"

#include <QLabel>

#include <stdexcept>

namespace orvane {

namespace {

/// A button beside a field comes and goes without the field.
void ShowControl(QWidget* control, bool isShown)
{
    const QLabel* label = LabelOf(control);
    const bool isOfOtherRow = label != nullptr && label->buddy() != control;
    if (isOfOtherRow || RowOf(control).Rows == nullptr)
        control->setVisible(isShown);
    else
        ShowRow(control, isShown);
}

void ShowWords(QWidget* control, TextView words)
{
    if (auto* label = qobject_cast<QLabel*>(control))
        return label->setText(ToQt(words));
    LabelOf(control)->setText(ToQt(words));
    control->setAccessibleName(SpokenName(words));
}

} // namespace

void ShowLook(QWidget& window, const Look& look)
{
    for (const ControlLook& part : look) {
        auto* control = window.findChild<QWidget*>(ToQt(part.Control));
        if (control == nullptr)
            throw std::logic_error("a look is that of no control");
        if (part.IsShown)
            ShowControl(control, *part.IsShown);
        if (part.IsEnabled)
            control->setEnabled(*part.IsEnabled);
        if (auto* box = qobject_cast<FileNameBox*>(control); box && part.HoldsFile)
            box->SetHoldsFile(*part.HoldsFile);
        if (part.Words)
            ShowWords(control, *part.Words);
        if (part.Tip)
            control->setToolTip(ToQt(*part.Tip));
        if (part.WordsLeft)
            WordsBeside(control, -1)->setText(ToQt(*part.WordsLeft));
        if (part.WordsRight)
            WordsBeside(control, 1)->setText(ToQt(*part.WordsRight));
    }
}

} // namespace orvane
