#include "windows/row_list_panel.h"

#include "services/move_row.h"
#include "windows/qt_text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

TextView TipOf(RowCommand command)
{
    switch (command) {
    case RowCommand::Remove:
        return u"Removes the selected row; Ctrl+Z brings it back";
    case RowCommand::MoveUp:
        return u"Moves the selected row up, as Alt+Up does in the list";
    case RowCommand::MoveDown:
        return u"Moves the selected row down, as Alt+Down does in the list";
    case RowCommand::Add:
    case RowCommand::Edit:
        break;
    }
    return {};
}

RowListPanel::RowListPanel(std::vector<ListColumn> columns, const RowListWords& words,
                           std::span<const RowButton> buttons, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      m_dialogs(dialogs),
      m_columns(columns),
      m_words(words),
      m_lists(new ParallelLists(std::move(columns), {}))
{
    auto* column = new QVBoxLayout;
    int place = 0;
    for (const RowButton& button : buttons) {
        QPushButton* control = MakeButton(button.Name, button.Caption,
                                          button.Tip.empty() ? TipOf(button.Command) : button.Tip);
        connect(control, &QPushButton::clicked, this,
                [this, command = button.Command, index = place++] { Run(command, index); });
        if (button.Command != RowCommand::Add && !button.StaysEnabled)
            m_rowButtons.push_back(control);
        column->addWidget(control);
    }
    column->addStretch(1);
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_lists, 1);
    all->addLayout(column);
    connect(m_lists, &ParallelLists::RowSelected, this, [this](int row) {
        m_list.Selected = row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
    });
    connect(m_lists, &ParallelLists::RowActivated, this, [this] { Run(RowCommand::Edit, -1); });
    connect(m_lists, &ParallelLists::RowDeleted, this, [this] { Run(RowCommand::Remove, -1); });
    connect(m_lists, &ParallelLists::MoveWanted, this,
            [this](int row) { MoveTo(static_cast<std::size_t>(row)); });
    Refresh();
}

std::size_t RowListPanel::IndexOf(ControlName name) const
{
    return static_cast<std::size_t>(std::ranges::find(m_columns, name, &ListColumn::Name) -
                                    m_columns.begin());
}

std::vector<Text> RowListPanel::Column(ControlName name) const
{
    std::vector<Text> texts;
    for (const auto& row : m_list.Rows)
        texts.push_back(row.at(IndexOf(name)));
    return texts;
}

void RowListPanel::SetColumn(ControlName name, const std::vector<Text>& texts)
{
    if (Column(name) == texts)
        return;
    const std::size_t column = IndexOf(name);
    m_list.Selected.reset();
    m_removed.Forget();
    if (m_list.Rows.size() < texts.size())
        m_list.Rows.resize(texts.size(), std::vector<Text>(m_columns.size()));
    for (std::size_t i = 0; i < m_list.Rows.size(); ++i)
        m_list.Rows[i].at(column) = i < texts.size() ? texts[i] : Text();
    while (!m_list.Rows.empty() && std::ranges::all_of(m_list.Rows.back(), &Text::empty))
        m_list.Rows.pop_back();
    Refresh();
}

void RowListPanel::AddRow(std::vector<Text> row)
{
    m_list.Rows.push_back(std::move(row));
    Select(m_list.Rows.size() - 1);
}

void RowListPanel::Select(std::size_t row)
{
    m_list.Selected = row;
    Refresh();
}

void RowListPanel::ChangeSelectedRow(std::vector<Text> row)
{
    m_list.Rows.at(m_list.Selected.value()) = std::move(row);
    Refresh();
}

void RowListPanel::Run(RowCommand command, int button)
{
    if (command == RowCommand::Add) {
        emit AddWanted(button);
    } else if (command == RowCommand::Edit) {
        if (!Refused(CheckEdit(m_list, m_words)))
            emit EditWanted();
    } else if (command == RowCommand::Remove) {
        Remove();
    } else {
        Move(command);
    }
}

void RowListPanel::Remove()
{
    RowList before = m_list;
    if (Refused(RemoveRow(m_list, m_words)))
        return;
    const std::size_t row = before.Selected.value();
    m_removed.Keep(row, std::move(before.Rows[row]));
    // The button, which is disabled without rows, would hand the focus to another one.
    if (m_list.Rows.empty())
        m_lists->setFocus();
    Refresh();
    emit RowRemoved(row);
}

void RowListPanel::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Undo))
        return QWidget::keyPressEvent(event);
    if (const auto row = m_removed.PutBack(m_list)) {
        Refresh();
        emit RowPutBack(*row);
    }
}

void RowListPanel::Move(RowCommand command)
{
    const bool isUp = command == RowCommand::MoveUp;
    const std::size_t from = m_list.Selected.value_or(0);
    if (Refused(isUp ? MoveRowUp(m_list, m_words) : MoveRowDown(m_list, m_words)))
        return;
    Refresh();
    emit RowMoved(from, *m_list.Selected);
}

void RowListPanel::MoveTo(std::size_t place)
{
    const std::size_t from = m_list.Selected.value();
    if (place == from)
        return;
    MoveSelectedTo(m_list, place);
    Refresh();
    emit RowMoved(from, place);
}

void RowListPanel::Refresh()
{
    for (QPushButton* button : m_rowButtons)
        button->setEnabled(!m_list.Rows.empty());
    m_lists->Show(m_list);
}

bool RowListPanel::Refused(const std::optional<Complaint>& complaint)
{
    if (complaint)
        m_dialogs.Say(complaint->Words, complaint->Look);
    return complaint.has_value();
}

} // namespace orvane
