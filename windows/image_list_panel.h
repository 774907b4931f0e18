#pragma once

#include "core/workbench.h"
#include "services/image_list.h"

#include <QSize>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;

namespace orvane {

class FolderBoxes;
class RowListPanel;

/// The part of a window in which the author picks images and puts them in order: drive, folder and
/// file box, and the list of an ImageRow for each image. Images can be dropped on the list as well,
/// and Ctrl+Z puts removed rows back, one after the other.
class ImageListPanel : public QWidget
{
    Q_OBJECT

public:
    /// Starts in the folder used last, with an empty list. The files of images that are added are
    /// recorded in `files`. The bench and the files must outlive the panel.
    ImageListPanel(Workbench& bench, RequiredFiles& files, const ImageListVariation& variation,
                   QWidget* parent = nullptr);

    /// From now on the numbers in these fields grow to the width and height, in pixels, of each
    /// added picture.
    void SetSizeFields(QLineEdit* width, QLineEdit* height);

    RowListPanel* List() const { return m_list; }

    /// Adds the files that are selected in the file box, if there are any.
    void AddImageToList();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* MakePreview();
    void Arrange();
    void Connect();
    void LoadPictureOf(const Text& path);
    void ShowPictureOfRow();
    void AddSelectedFiles();
    void AddFiles(const std::vector<Text>& paths);
    std::optional<Complaint> Take(const Text& path);

    Workbench& m_bench;
    RequiredFiles& m_files;
    const ImageListVariation m_variation;
    QSize m_pictureSize{0, 0}; ///< of the last picture that could be loaded
    FolderBoxes* m_boxes;
    QPushButton* cmdAdd;
    RowListPanel* m_list;
    QLabel* m_preview = nullptr; ///< null when the variation shows none
    QLineEdit* m_width = nullptr;
    QLineEdit* m_height = nullptr;
};

} // namespace orvane
