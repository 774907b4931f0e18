#include "windows/hint_lines.h"

#include "windows/controls.h"
#include "windows/qt_text.h"

#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

constexpr int gapAbove = 2; ///< less than that between two rows, so that the line is the field's

/// A line below the field in the same row; null when no form layout holds the field.
QLabel* AddLineBelow(QWidget* field)
{
    FormRow place;
    for (const QWidget* part = field; part->parentWidget() != nullptr && place.Rows == nullptr;
         part = part->parentWidget())
        place = RowOf(part);
    if (place.Rows == nullptr)
        return nullptr;
    auto* line = new QLabel;
    line->setObjectName(QStringLiteral("lblHint(%1)").arg(field->objectName()));
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    const auto role = static_cast<QFormLayout::ItemRole>(place.Role);
    QLayoutItem* above = place.Rows->itemAt(place.Row, role);
    place.Rows->removeItem(above);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(gapAbove);
    if (above->layout() != nullptr)
        lines->addLayout(above->layout());
    else
        lines->addItem(above);
    lines->addWidget(line);
    place.Rows->setLayout(place.Row, role, lines);
    return line;
}

} // namespace

void HintLines::Show(const std::vector<Hint>& hints)
{
    for (const auto& [field, line] : m_lines)
        if (std::ranges::find(hints, field, &Hint::Control) == hints.end())
            ShowLine(field, {});
    for (const Hint& hint : hints)
        ShowLine(hint.Control, hint.Words);
}

void HintLines::ShowLine(ControlName name, TextView words)
{
    auto* field = m_window.findChild<QWidget*>(ToQt(name));
    if (field == nullptr)
        return;
    const bool isShown = !words.empty() && !field->isHidden();
    auto [place, isNew] = m_lines.try_emplace(std::string(name), nullptr);
    QLabel*& line = place->second;
    if (line == nullptr && isShown)
        line = AddLineBelow(field);
    field->setAccessibleDescription(isShown ? ToQt(words) : QString());
    if (line == nullptr)
        return;
    line->setText(ToQt(words));
    line->setVisible(isShown);
}

} // namespace orvane
