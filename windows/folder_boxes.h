#pragma once

#include "core/file_store.h"
#include "services/folder_list.h"
#include "windows/acting_list.h"
#include "windows/controls.h"

#include <vector>

class QComboBox;
class QVBoxLayout;

namespace orvane {

/// The full paths of the root folder and of all mounted volumes but those of the system itself.
std::vector<Text> MountedDrives();

/// The object names of one set of boxes.
struct FolderBoxNames
{
    ControlName Drive;
    ControlName Folder;
    ControlName File; ///< empty for a window without a file box
};

/// Drive, folder and file box, one above the other: each shows the content of what is chosen in the
/// box above it.
class FolderBoxes : public QWidget
{
    Q_OBJECT

public:
    /// Starts in the author's home folder, or the root when that cannot be read. The file box shows
    /// the names that fit the masks.
    FolderBoxes(const FileStore& files, const FolderBoxNames& names, TextView masks,
                QWidget* parent = nullptr);

    /// Shows another folder; false, with everything as it was, when it cannot be read.
    bool GoTo(TextView folder);

    /// Reads the folder anew and shows what it contains.
    void Refresh();

    /// The full path of the folder that is shown.
    const Text& Folder() const { return m_folder; }

    /// The name of the file box's current row if it is selected, else the empty text. Of several
    /// selected rows the current one is the one that the author came to last.
    Text FileName() const;

    /// All selected names from top to bottom, for a file box in which several may be selected.
    std::vector<Text> SelectedFiles() const;

    QComboBox* DriveBox() const { return m_drives; }
    QListWidget* FolderBox() const { return m_folders; }
    QListWidget* FileBox() const { return m_files; } ///< null for a window without one

signals:
    /// The author, not the program, went to another folder.
    void FolderPicked();
    /// The selection in the file box changed; it may be empty.
    void FileSelected();
    /// A double click on a file, or Enter on a selected one. While nobody listens, Enter goes on to
    /// the window's default button.
    void FileActivated();

protected:
    void connectNotify(const QMetaMethod& signal) override;

private:
    void AddBox(QVBoxLayout* column, ControlName name, TextView caption, QWidget* box, int stretch);
    void PickDrive(int index);
    void PickFolder(int row);
    void ShowDrive();
    void ShowFolders(const FolderRows& list);
    void ShowFiles();

    const FileStore& m_store;
    const Text m_masks;
    const std::vector<Text> m_driveList;
    Text m_folder;
    QComboBox* m_drives;
    ActingList* m_folders;
    ActingList* m_files = nullptr;
};

} // namespace orvane
