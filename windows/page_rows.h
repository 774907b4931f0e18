#pragma once

#include "core/complaint.h"

#include <QLabel>
#include <QWidget>

#include <initializer_list>

class QFormLayout;
class QHBoxLayout;
class QPushButton;

namespace orvane {

/// The rows of a window's page, without the fields that ask something: each call adds one row below
/// the last one and returns its widget, unless its comment says otherwise.
class PageRows
{
public:
    /// A paragraph of plain text.
    QLabel* Note(TextView words, ControlName name = {});

    /// A picture of the program's resources, such as "status_bar_sample".
    QLabel* Picture(const QString& name, QSize size);

    /// Makes a button; adds no row, the caller puts it into one.
    QPushButton* Button(ControlName name, TextView caption, TextView tip = {});

    /// A row of buttons, each as wide as its caption.
    void Buttons(std::initializer_list<QPushButton*> buttons);

    /// The row of buttons that ends a window: at its left those that leave it open, at its right
    /// those that close it.
    void EndButtons(std::initializer_list<QPushButton*> left,
                    std::initializer_list<QPushButton*> right);

    /// Any widgets side by side in one row with a label, which belongs to the first one. The first
    /// one takes the width that is left. Returns the label; null when `label` is empty.
    QLabel* Row(TextView label, std::initializer_list<QWidget*> widgets);

    /// A row of one widget that takes the height that is left; of an empty one when it is null.
    /// Returns the widget.
    QWidget* Fill(QWidget* widget = nullptr);

    /// Makes the field as narrow as a number and returns it. Expects the field of the last row.
    template <class Field>
    Field* Narrow(Field* field)
    {
        KeepNarrow(*field);
        return field;
    }

    /// The widget that the rows are built into.
    QWidget* Page() const { return m_page; }

protected:
    /// Gives `page` a form layout and builds into it.
    explicit PageRows(QWidget* page);

    /// A row of a field with its label, and with a widget to the right of it unless that is null.
    void FieldRow(QWidget* field, ControlName name, TextView label, TextView tip, QWidget* beside);

    /// Makes the label of a field, which names it to a screen reader as well.
    QLabel* Caption(TextView label, QWidget* field);

    /// Makes a label of plain text; null without words.
    QLabel* Words(TextView words);

    /// The layout of the last row's widgets. Expects a row with a label.
    QHBoxLayout* LastLine() const;

    QFormLayout& Rows() const { return *m_rows; }

private:
    void KeepNarrow(QWidget& field);

    QWidget* m_page;
    QFormLayout* m_rows;
};

} // namespace orvane
