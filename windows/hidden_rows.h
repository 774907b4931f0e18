#pragma once

#include "core/fields.h"
#include "windows/controls.h"

#include <QWidget>

namespace orvane {

/// The control of a list of rows that the author does not see, and that stay as they are.
class HiddenRows : public QWidget
{
public:
    HiddenRows(ControlName name, QWidget* window) : QWidget(window)
    {
        setObjectName(ToQt(name));
        hide();
    }

    RowTexts Rows;
};

} // namespace orvane
