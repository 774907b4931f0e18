#include "windows/parallel_lists.h"

#include "windows/qt_text.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

namespace orvane {

namespace {

int SelectedRow(const QListWidget& list)
{
    const QModelIndexList selected = list.selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

} // namespace

ParallelLists::ParallelLists(const std::vector<ImageListColumn>& columns, TextView rowTip,
                             QWidget* parent)
    : QWidget(parent), m_columns(columns)
{
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    for (const ImageListColumn& column : m_columns) {
        QListWidget* list = MakeList(column);
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
    splitter->setStretchFactor(0, 2);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(splitter);
}

QListWidget* ParallelLists::MakeList(const ImageListColumn& column)
{
    auto* list = new QListWidget;
    list->setObjectName(QString::fromStdString(column.Name));
    list->setAccessibleName(ToQt(column.Header));
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    const bool isFirst = column.Name == m_columns.front().Name;
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    list->setMinimumWidth(list->fontMetrics().averageCharWidth() * (isFirst ? 24 : 12));
    if (m_columns.size() > 1) {
        // A bar below one list alone would put the rows out of step.
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        if (column.Name != m_columns.back().Name)
            list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    connect(list, &QListWidget::itemSelectionChanged, this, [this, list] { Follow(*list); });
    connect(list, &QListWidget::itemDoubleClicked, this, &ParallelLists::RowDoubleClicked);
    connect(list, &QWidget::customContextMenuRequested, this, [this, list](QPoint place) {
        emit MenuRequested(list->viewport()->mapToGlobal(place));
    });
    connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        for (QListWidget* other : m_lists)
            other->verticalScrollBar()->setValue(value);
    });
    return list;
}

void ParallelLists::Follow(const QListWidget& list)
{
    const int row = SelectedRow(list);
    SelectInAll(row);
    emit RowSelected(row);
}

void ParallelLists::SelectInAll(int row)
{
    for (QListWidget* list : m_lists) {
        if (SelectedRow(*list) == row)
            continue;
        const QSignalBlocker quiet(list);
        list->setCurrentRow(row);
    }
}

void ParallelLists::Show(const ImageList& images)
{
    const int count = static_cast<int>(images.Rows.size());
    for (std::size_t column = 0; column < m_lists.size(); ++column) {
        QListWidget* list = m_lists[column];
        const QSignalBlocker quiet(list);
        // Rows that stay keep their place on the screen.
        while (list->count() > count)
            delete list->takeItem(list->count() - 1);
        while (list->count() < count)
            list->addItem(QString());
        for (int row = 0; row < count; ++row)
            list->item(row)->setText(
                ToQt(images.Rows[static_cast<std::size_t>(row)].*m_columns[column].Field));
    }
    SelectInAll(images.Selected ? static_cast<int>(*images.Selected) : -1);
}

} // namespace orvane
