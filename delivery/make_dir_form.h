#pragma once

#include "windows/ok_cancel_form.h"

#include <optional>

namespace orvane {

class FolderBoxes;

/// The "Create Folder" window.
class MakeDirForm : public OkCancelForm
{
    Q_OBJECT

public:
    /// Shows `folder` first, in which the new one is to be.
    MakeDirForm(Workbench& bench, TextView folder, QWidget* parent = nullptr);

    /// The full path of the new folder, for the caller to show; nothing when none was made.
    const std::optional<Text>& NewFolder() const { return m_newFolder; }

private:
    void Accept() override;

    FolderBoxes* m_boxes;
    QLineEdit* txtFolder;
    std::optional<Text> m_newFolder;
};

} // namespace orvane
