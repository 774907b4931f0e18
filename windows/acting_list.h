#pragma once

#include <QListWidget>

namespace orvane {

/// A list that tells of double clicks wherever they fall, and of Enter and Delete while a row is
/// selected; the first arrow key selects its first row. A press beside the rows changes nothing.
class ActingList : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    /// The row that is selected, or -1; a row that only has the focus does not count.
    int SelectedRow() const;

    /// A few rows; whoever has more room gives it.
    QSize sizeHint() const override;

signals:
    void DoubleClicked();
    void Entered();
    void Deleted();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};

} // namespace orvane
