#pragma once

#include "core/fields.h"
#include "core/workbench.h"
#include "windows/controls.h"

#include <QWidget>

#include <vector>

namespace orvane {

class ColorSwatch;

/// The field of several colours: swatches side by side, of which those without a colour do not
/// count.
class ColorList : public QWidget
{
    Q_OBJECT

public:
    /// The field `name` of that many swatches, which are `name`(0), `name`(1) and so on. The bench
    /// must outlive it.
    ColorList(ControlName name, int count, Workbench& bench, QWidget* parent = nullptr);

    /// The colours that are shown, from left to right.
    FieldTexts Colors() const;

    /// Shows these colours, as many as there are swatches for.
    void SetColors(const FieldTexts& colors);

signals:
    /// The author picked a colour or took one away.
    void ColorsChanged();

private:
    std::vector<ColorSwatch*> m_swatches;
};

} // namespace orvane
