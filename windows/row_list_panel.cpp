#include "windows/row_list_panel.h"

#include "windows/parallel_lists.h"
#include "windows/qt_text.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPushButton>

#include <utility>

namespace orvane {

namespace {

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

} // namespace

RowListPanel::RowListPanel(const RowListLook& look, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      m_dialogs(dialogs),
      m_look(look),
      m_lists(new ParallelLists(look.Columns, look.RowTip))
{
    Arrange();
    Connect();
    Refresh();
}

void RowListPanel::Arrange()
{
    const bool isBelow = m_look.HasButtonsBelow;
    auto* buttons = new QBoxLayout(isBelow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    for (int index = 0; const RowButton& button : m_look.Buttons) {
        QPushButton* control = MakeButton(button.Name, button.Caption,
                                          button.Tip.empty() ? TipOf(button.Command) : button.Tip);
        connect(control, &QPushButton::clicked, this,
                [this, button, index] { Run(button, index); });
        if (button.Command != RowCommand::Add && !button.StaysEnabled)
            m_rowButtons.push_back(control);
        buttons->addWidget(control);
        ++index;
    }
    buttons->addStretch(1);
    auto* all = new QBoxLayout(isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_lists, 1);
    all->addLayout(buttons);
}

void RowListPanel::Connect()
{
    connect(m_lists, &ParallelLists::RowSelected, this, [this](int row) {
        m_list.Selected = row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
        emit RowSelected();
    });
    connect(m_lists, &ParallelLists::RowDeleted, this, &RowListPanel::Remove);
    connect(m_lists, &ParallelLists::MoveWanted, this, [this](int row) {
        MoveSelectedTo(m_list, static_cast<std::size_t>(row));
        Refresh();
    });
    connect(m_lists, &ParallelLists::MenuRequested, this, [this](QPoint place) {
        if (m_list.Selected)
            emit MenuRequested(place);
    });
}

void RowListPanel::connectNotify(const QMetaMethod& signal)
{
    if (signal == QMetaMethod::fromSignal(&RowListPanel::EditWanted))
        connect(m_lists, &ParallelLists::RowActivated, this, &RowListPanel::Edit,
                Qt::UniqueConnection);
}

void RowListPanel::SetRows(RowTexts rows)
{
    if (rows == m_list.Rows)
        return;
    m_list = {.Rows = std::move(rows), .Selected = {}};
    Refresh();
}

void RowListPanel::AddRow(FieldTexts row)
{
    orvane::InsertRows(m_list, m_list.Rows.size(), {std::move(row)});
    Refresh();
}

void RowListPanel::InsertRows(RowTexts rows)
{
    orvane::InsertRows(m_list, PlaceToInsert(m_list), std::move(rows));
    Refresh();
}

void RowListPanel::Select(std::size_t row)
{
    m_list.Selected = row;
    Refresh();
}

void RowListPanel::ChangeSelectedRow(FieldTexts row)
{
    m_list.Rows.at(m_list.Selected.value()) = std::move(row);
    Refresh();
}

void RowListPanel::PutRowBack()
{
    if (!orvane::PutRowBack(m_list))
        return;
    Refresh();
    emit RowSelected();
}

void RowListPanel::EnableButtons()
{
    for (QPushButton* button : std::exchange(m_rowButtons, {}))
        button->setEnabled(true);
}

void RowListPanel::Run(const RowButton& button, int index)
{
    switch (button.Command) {
    case RowCommand::Add:
        emit AddWanted(index);
        break;
    case RowCommand::Edit:
        Edit();
        break;
    case RowCommand::Remove:
        Remove();
        break;
    case RowCommand::MoveUp:
        Move(MoveRowUp(m_list, m_look.Words));
        break;
    case RowCommand::MoveDown:
        Move(MoveRowDown(m_list, m_look.Words));
        break;
    }
}

void RowListPanel::Edit()
{
    if (!Refused(CheckEdit(m_list, m_look.Words)))
        emit EditWanted();
}

void RowListPanel::Remove()
{
    if (Refused(RemoveRow(m_list, m_look.Words)))
        return;
    // The button, which is disabled without rows, would hand the focus to another one.
    if (m_list.Rows.empty() && !m_rowButtons.empty())
        m_lists->setFocus();
    Refresh();
}

void RowListPanel::Move(const std::optional<Complaint>& complaint)
{
    if (!Refused(complaint))
        Refresh();
}

void RowListPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo))
        PutRowBack();
    else
        QWidget::keyPressEvent(event);
}

void RowListPanel::Refresh()
{
    for (QPushButton* button : m_rowButtons)
        button->setEnabled(!m_list.Rows.empty());
    m_lists->Show(m_list);
    emit RowsChanged();
}

bool RowListPanel::Refused(const std::optional<Complaint>& complaint)
{
    if (complaint && !complaint->Words.empty())
        m_dialogs.Say(complaint->Words, complaint->Look);
    return complaint.has_value();
}

} // namespace orvane
