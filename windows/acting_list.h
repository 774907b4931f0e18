#pragma once

#include <QListWidget>

namespace orvane {

/// A list box that signals double clicks, on a row or beside the rows, and Enter and Delete while a
/// row is selected; a key that nobody listens to goes on to the window, as Enter to its default
/// button. With no row selected, Up, Down or Space selects the first one. A mouse press beside the
/// rows leaves the selection as it is.
class ActingList : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    /// The selected row, counted from 0, or -1; a row that only has the focus does not count.
    int SelectedRow() const;

    /// About seven rows high; a layout with more room may make it higher.
    QSize sizeHint() const override;

signals:
    /// A double click with the left button anywhere in the list.
    void DoubleClicked();
    /// A double click with the left button on a row.
    void RowDoubleClicked();
    /// Enter while a row is selected.
    void Entered();
    /// The Delete key while a row is selected; the list itself removes nothing.
    void Deleted();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    bool Tell(void (ActingList::*signal)());
};

} // namespace orvane
