#pragma once

#include "services/image_list.h"

#include <QPoint>
#include <QWidget>

class QListWidget;

namespace orvane {

/// The lists of a window that speak of the same images, side by side under their headers: they
/// scroll as one and a row is selected in all of them.
class ParallelLists : public QWidget
{
    Q_OBJECT

public:
    ParallelLists(const std::vector<ImageListColumn>& columns, TextView rowTip,
                  QWidget* parent = nullptr);

    /// Shows these rows and the selected one.
    void Show(const ImageList& list);

signals:
    /// The author selected another row, or none, which is -1.
    void RowSelected(int row);
    void RowDoubleClicked();
    /// A right press, or the menu key, at that place of the screen.
    void MenuRequested(QPoint globalPlace);

private:
    QListWidget* MakeList(const ImageListColumn& column);
    void Follow(const QListWidget& list);
    void SelectInAll(int row);

    const std::vector<ImageListColumn> m_columns;
    std::vector<QListWidget*> m_lists; ///< one for each column
};

} // namespace orvane
