#pragma once

#include "core/workbench.h"

#include <QWidget>

#include <vector>

namespace orvane {

class PictureBox;
class RowListPanel;

/// What belongs to each picture of a list.
enum class PictureWords
{
    None, ///< the picture alone
    Own,  ///< a description and a link, for which each picture has a window
};

/// The list of a block's pictures, with a preview of the selected one. Pictures come
/// by a file dialog, several at once, or are dropped on the list, whole folders too; a file that
/// cannot be read as a picture is named to the author and left out. They are put in order, and
/// removed ones put back, as in every list of rows.
class PictureListPanel : public QWidget
{
public:
    /// Starts with an empty list of that name. F1 in the window of a picture opens the help topic
    /// of `kind`. The bench must outlive the panel.
    PictureListPanel(EffectKind kind, PictureWords words, Workbench& bench,
                     ControlName list = "lstPictures", QWidget* parent = nullptr);

private:
    void Browse();
    void Add(const std::vector<Text>& paths);
    void ShowSelected();

    Workbench& m_bench;
    RowListPanel* m_list;
    PictureBox* m_preview;
};

} // namespace orvane
