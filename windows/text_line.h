#pragma once

#include <QLineEdit>

namespace orvane {

/// A box for one line of text, however long. A read-only one has the color of the window around it.
class TextLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextLine(QWidget* parent = nullptr);

protected:
    void initStyleOption(QStyleOptionFrame* option) const override;
};

} // namespace orvane
