#include "windows/hint_lines.h"

#include "windows/controls.h"
#include "windows/qt_text.h"

#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace orvane {

namespace {

/// A line in a new row below that of the field; null when no form layout holds the field.
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
    const bool hasLabel = place.Rows->itemAt(place.Row, QFormLayout::LabelRole) != nullptr;
    if (hasLabel)
        place.Rows->insertRow(place.Row + 1, nullptr, line);
    else
        place.Rows->insertRow(place.Row + 1, line);
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
