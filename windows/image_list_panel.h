#pragma once

#include "core/workbench.h"
#include "services/image_list.h"
#include "services/removed_rows.h"

#include <QPoint>
#include <QSize>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;

namespace orvane {

class FolderBoxes;
class ParallelLists;

/// The part of a window in which the author picks images and puts them in order: drive, folder and
/// file box, the image list, the lists beside it that show further texts of the same images, and
/// their buttons. Images can be dropped on the lists as well, and Ctrl+Z puts removed rows back,
/// one after the other.
class ImageListPanel : public QWidget
{
    Q_OBJECT

public:
    /// Starts in the folder used last, with an empty list; empties the shared table of files to
    /// copy. The bench must outlive the panel.
    ImageListPanel(Workbench& bench, const ImageListVariation& variation,
                   QWidget* parent = nullptr);

    /// From now on the numbers in these fields grow to the width and height, in pixels, of each
    /// added picture.
    void SetSizeFields(QLineEdit* width, QLineEdit* height);

    const std::vector<ImageRow>& Rows() const { return m_list.Rows; }
    std::optional<std::size_t> Selected() const { return m_list.Selected; }

    /// Shows other rows, none of them selected, without recording their files for copying; no
    /// removed row comes back then.
    void SetRows(std::vector<ImageRow> rows);

    /// Replaces one row and selects it. Expects an existing row; throws std::out_of_range for any
    /// other.
    void SetRow(std::size_t index, ImageRow row);

    /// Adds the files that are selected in the file box, if there are any.
    void AddImageToList();

signals:
    /// The rows were shown anew: the author or the program may have changed them.
    void RowsChanged();
    /// The author selected another row, or none, or added one that is selected now.
    void RowSelected();
    /// A double click in the lists, or Enter on a selected row. While nobody listens, Enter goes on
    /// to the window's default button.
    void RowActivated();
    /// A right press on a row, or the menu key, while a row is selected; a place on the screen.
    void MenuRequested(QPoint globalPlace);

protected:
    void connectNotify(const QMetaMethod& signal) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* MakePreview();
    void Arrange();
    void Connect();
    void LoadPictureOf(const Text& path);
    void ShowPictureOfRow();
    void AddSelectedFiles();
    void Remove();
    void AddFiles(const std::vector<Text>& paths);
    std::optional<Complaint> AddFile(const Text& path, std::size_t place);
    void EnableListButtons(bool isOn);
    void ShowList();
    void Tell(const std::optional<Complaint>& complaint);

    Workbench& m_bench;
    const ImageListVariation m_variation;
    ImageList m_list;
    RemovedRows<ImageRow> m_removed;
    QSize m_pictureSize{0, 0}; ///< of the last picture that could be loaded
    FolderBoxes* m_boxes;
    ParallelLists* m_lists;
    QPushButton* cmdAdd;
    QPushButton* cmdMoveUp;
    QPushButton* cmdMoveDown;
    QPushButton* cmdDelete;
    QLabel* m_preview = nullptr; ///< null when the variation shows none
    QLineEdit* m_width = nullptr;
    QLineEdit* m_height = nullptr;
};

} // namespace orvane
