#pragma once

#include "core/fields.h"
#include "windows/controls.h"

#include <QLineEdit>

class QWidget;

namespace orvane {

/// A text box for a number that takes any text; the arrow keys and the two buttons of UpDown()
/// step it within its bounds.
class NumberBox : public QLineEdit
{
    Q_OBJECT

public:
    NumberBox(ControlName name, const NumberBounds& bounds, QWidget* parent);

    /// From now on the number is stepped within these bounds.
    void SetBounds(const NumberBounds& bounds) { m_bounds = bounds; }

    /// The pair of buttons, to be put beside the box; their object names are the box's name with
    /// "Up" or "Down" appended.
    QWidget* UpDown() const { return m_upDown; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Step(int direction);

    NumberBounds m_bounds;
    QWidget* m_upDown;
};

} // namespace orvane
