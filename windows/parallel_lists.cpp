#include "windows/parallel_lists.h"

#include "windows/movable_list.h"
#include "windows/qt_text.h"

#include <QLabel>
#include <QMetaMethod>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QUuid>
#include <QVBoxLayout>

namespace orvane {

namespace {

QString FirstLine(const ListColumn& column, const Text& text)
{
    const Text shown = column.Shown != nullptr ? column.Shown(text) : text;
    return ToQt(shown.substr(0, shown.find_first_of(u"\r\n")));
}

} // namespace

ParallelLists::ParallelLists(std::vector<ListColumn> columns, TextView rowTip, QWidget* parent)
    : QWidget(parent),
      m_columns(std::move(columns)),
      m_family(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    for (const ListColumn& column : m_columns) {
        MovableList* list = MakeList(column);
        list->setToolTip(ToQt(rowTip));
        auto* header = new QLabel(ToQt(column.Header));
        header->setBuddy(list);
        auto* pane = new QWidget;
        auto* rows = new QVBoxLayout(pane);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->addWidget(header);
        rows->addWidget(list, 1);
        splitter->addWidget(pane);
        m_lists.push_back(list);
    }
    setFocusProxy(m_lists.front());
    for (int column = 0; column < splitter->count(); ++column)
        splitter->setStretchFactor(column, IsWide(column) ? 2 : 1);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(splitter);
}

/// Names and addresses of pages are long, all else is short.
bool ParallelLists::IsWide(int column) const
{
    return column == 0 ||
           m_columns[static_cast<std::size_t>(column)].Header.find(u"URL") != TextView::npos;
}

MovableList* ParallelLists::MakeList(const ListColumn& column)
{
    auto* list = new MovableList(m_family);
    list->setObjectName(ToQt(column.Name));
    list->setAccessibleName(SpokenName(column.Header));
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    const bool isFirst = m_lists.empty();
    if (!isFirst)
        list->setFocusPolicy(Qt::ClickFocus);
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    list->setMinimumWidth(list->fontMetrics().averageCharWidth() *
                          (IsWide(static_cast<int>(m_lists.size())) ? 30 : 12));
    if (m_columns.size() > 1) {
        // A bar below one list alone would put the rows out of step.
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        if (column.Name != m_columns.back().Name)
            list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    connect(list, &QListWidget::itemSelectionChanged, this, [this, list] { Follow(*list); });
    connect(list, &MovableList::Deleted, this, &ParallelLists::RowDeleted);
    connect(list, &MovableList::MoveWanted, this, &ParallelLists::MoveWanted);
    connect(list, &QWidget::customContextMenuRequested, this, [this, list](QPoint place) {
        if (list->itemAt(place) != nullptr)
            emit MenuRequested(list->viewport()->mapToGlobal(place));
    });
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        for (MovableList* other : m_lists)
            other->verticalScrollBar()->setValue(value);
    });
    return list;
}

void ParallelLists::connectNotify(const QMetaMethod& signal)
{
    if (signal != QMetaMethod::fromSignal(&ParallelLists::RowActivated))
        return;
    for (MovableList* list : m_lists)
        for (const auto act : {&MovableList::DoubleClicked, &MovableList::Entered})
            connect(list, act, this, &ParallelLists::RowActivated, Qt::UniqueConnection);
}

void ParallelLists::Follow(const MovableList& list)
{
    const int row = list.SelectedRow();
    SelectInAll(row);
    emit RowSelected(row);
}

void ParallelLists::SelectInAll(int row)
{
    for (MovableList* list : m_lists) {
        if (list->SelectedRow() == row && list->currentRow() == row)
            continue;
        const QSignalBlocker quiet(list);
        list->setCurrentRow(row);
    }
}

void ParallelLists::Show(const RowList& rows)
{
    const int count = static_cast<int>(rows.Rows.size());
    for (std::size_t column = 0; column < m_lists.size(); ++column) {
        MovableList* list = m_lists[column];
        const QSignalBlocker quiet(list);
        // Rows that stay keep their place on the screen.
        while (list->count() > count)
            delete list->takeItem(list->count() - 1);
        while (list->count() < count)
            list->AddRow();
        for (int row = 0; row < count; ++row)
            list->item(row)->setText(
                FirstLine(m_columns[column], rows.Rows[static_cast<std::size_t>(row)].at(column)));
    }
    SelectInAll(rows.Selected ? static_cast<int>(*rows.Selected) : -1);
}

} // namespace orvane
