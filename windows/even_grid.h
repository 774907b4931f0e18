#pragma once

#include <QLayout>

#include <memory>
#include <optional>
#include <vector>

namespace orvane {

/// Lays its widgets out in rows of equal cells, as many columns as the width has room for, so that
/// they fill it evenly.
class EvenGrid : public QLayout
{
public:
    /// `columns` is the number for which sizeHint() asks room; the real one follows the width.
    explicit EvenGrid(int columns, QWidget* parent = nullptr);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override { return Around(CellSize()); }
    void setGeometry(const QRect& room) override;
    void invalidate() override;

private:
    QSize CellSize() const;
    QSize Around(QSize cells) const;
    int ColumnsIn(int width) const;
    int RowsOf(int columns) const;

    int m_columns;
    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    mutable std::optional<QSize> m_cellSize;
};

} // namespace orvane
