#include "windows/page_rows.h"

#include "windows/boxes.h"
#include "windows/controls.h"
#include "windows/qt_text.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace orvane {

namespace {

constexpr int numberLetters = 14; ///< width of a field for a number

} // namespace

PageRows::PageRows(QWidget* page) : m_page(page), m_rows(new QFormLayout(page))
{
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
}

QLabel* PageRows::Note(TextView words, ControlName name)
{
    auto* note = new QLabel(ToQtLines(words), m_page);
    note->setObjectName(ToQt(name));
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    m_rows->addRow(note);
    return note;
}

QLabel* PageRows::Picture(const QString& name, QSize size)
{
    QLabel* picture = MakePicture(name, size, m_page);
    m_rows->addRow(picture);
    return picture;
}

QPushButton* PageRows::Button(ControlName name, TextView caption, TextView tip)
{
    QPushButton* button = MakeButton(name, caption, tip);
    button->setParent(m_page);
    return button;
}

void PageRows::Buttons(std::initializer_list<QPushButton*> buttons)
{
    auto* line = new QHBoxLayout;
    for (QPushButton* button : buttons)
        line->addWidget(button);
    line->addStretch(1);
    m_rows->addRow(line);
}

void PageRows::EndButtons(std::initializer_list<QPushButton*> left,
                          std::initializer_list<QPushButton*> right)
{
    Buttons(left);
    QLayoutItem* row = m_rows->itemAt(m_rows->rowCount() - 1, QFormLayout::SpanningRole);
    auto* line = static_cast<QHBoxLayout*>(row->layout());
    for (QPushButton* button : right)
        line->addWidget(button);
}

QLabel* PageRows::Row(TextView label, std::initializer_list<QWidget*> widgets)
{
    auto* line = new QHBoxLayout;
    for (QWidget* widget : widgets)
        line->addWidget(widget, widget == *widgets.begin() ? 1 : 0);
    if (label.empty()) {
        m_rows->addRow(line);
        return nullptr;
    }
    QLabel* caption = Caption(label, *widgets.begin());
    m_rows->addRow(caption, line);
    return caption;
}

QWidget* PageRows::Fill(QWidget* widget)
{
    if (widget == nullptr)
        widget = new QWidget(m_page);
    QSizePolicy policy = widget->sizePolicy();
    policy.setVerticalPolicy(QSizePolicy::Expanding);
    policy.setVerticalStretch(1);
    widget->setSizePolicy(policy);
    m_rows->addRow(widget);
    return widget;
}

void PageRows::FieldRow(QWidget* field, ControlName name, TextView label, TextView tip,
                        QWidget* beside)
{
    field->setObjectName(ToQt(name));
    field->setToolTip(ToQt(tip));
    if (beside == nullptr)
        Row(label, {field});
    else
        Row(label, {field, beside});
}

QLabel* PageRows::Caption(TextView label, QWidget* field)
{
    auto* caption = new QLabel(ToQt(label), m_page);
    caption->setBuddy(field);
    field->setAccessibleName(SpokenName(label));
    return caption;
}

QLabel* PageRows::Words(TextView words)
{
    if (words.empty())
        return nullptr;
    auto* label = new QLabel(ToQt(words), m_page);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QHBoxLayout* PageRows::LastLine() const
{
    QLayoutItem* field = m_rows->itemAt(m_rows->rowCount() - 1, QFormLayout::FieldRole);
    return static_cast<QHBoxLayout*>(field->layout());
}

void PageRows::KeepNarrow(QWidget& field)
{
    field.setFixedWidth(numberLetters * field.fontMetrics().averageCharWidth());
    LastLine()->setStretchFactor(&field, 0);
    LastLine()->addStretch(1);
}

} // namespace orvane
