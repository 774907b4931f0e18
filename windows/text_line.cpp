#include "windows/text_line.h"

#include "windows/controls.h"

#include <QStyleOptionFrame>

#include <limits>

namespace orvane {

TextLine::TextLine(QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(std::numeric_limits<int>::max());
    LeaveAltToAccessKeys(*this);
    setMinimumWidth(22 * fontMetrics().averageCharWidth());
}

void TextLine::initStyleOption(QStyleOptionFrame* option) const
{
    QLineEdit::initStyleOption(option);
    if (isReadOnly())
        option->palette.setBrush(QPalette::Base, palette().window());
}

} // namespace orvane
