#include "windows/even_grid.h"

#include <algorithm>

namespace orvane {

EvenGrid::EvenGrid(int columns, QWidget* parent) : QLayout(parent), m_columns(columns)
{
    setSpacing(4);
}

void EvenGrid::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
    invalidate();
}

QLayoutItem* EvenGrid::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* EvenGrid::takeAt(int index)
{
    if (itemAt(index) == nullptr)
        return nullptr;
    const auto place = m_items.begin() + index;
    QLayoutItem* item = place->release();
    m_items.erase(place);
    invalidate();
    return item;
}

int EvenGrid::heightForWidth(int width) const
{
    const int columns = ColumnsIn(width - Around({}).width());
    const int rows = RowsOf(columns);
    return Around({0, rows * CellSize().height() + std::max(rows - 1, 0) * spacing()}).height();
}

QSize EvenGrid::sizeHint() const
{
    const int width = m_columns * (CellSize().width() + spacing()) - spacing();
    const int whole = Around({width, 0}).width();
    return {whole, heightForWidth(whole)};
}

void EvenGrid::setGeometry(const QRect& room)
{
    QLayout::setGeometry(room);
    const QRect inner = contentsRect();
    const int columns = ColumnsIn(inner.width());
    const QSize cell = CellSize();
    const auto leftOf = [&](int column) {
        return inner.left() + column * (inner.width() + spacing()) / columns;
    };
    for (int i = 0; i < count(); ++i) {
        const int column = i % columns;
        const int top = inner.top() + i / columns * (cell.height() + spacing());
        const int width = leftOf(column + 1) - spacing() - leftOf(column);
        itemAt(i)->setGeometry({leftOf(column), top, width, cell.height()});
    }
}

void EvenGrid::invalidate()
{
    m_cellSize.reset();
    QLayout::invalidate();
}

/// The room that the largest widget needs.
QSize EvenGrid::CellSize() const
{
    if (!m_cellSize) {
        m_cellSize.emplace(0, 0);
        for (const auto& item : m_items)
            *m_cellSize = m_cellSize->expandedTo(item->sizeHint());
    }
    return *m_cellSize;
}

QSize EvenGrid::Around(QSize cells) const
{
    return cells.grownBy(contentsMargins());
}

int EvenGrid::ColumnsIn(int width) const
{
    return std::max((width + spacing()) / std::max(CellSize().width() + spacing(), 1), 1);
}

int EvenGrid::RowsOf(int columns) const
{
    return (count() + columns - 1) / columns;
}

} // namespace orvane
