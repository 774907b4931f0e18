#pragma once

#include "core/workbench.h"

#include <QDialog>

#include <optional>

class QLineEdit;

namespace orvane {

class FolderBoxes;

/// The "Create Folder" window.
class MakeDirForm : public QDialog
{
    Q_OBJECT

public:
    /// `folder` is the one that the delivery wizard shows.
    MakeDirForm(Workbench& bench, TextView folder, QWidget* parent = nullptr);

    /// Where the delivery wizard's folder box goes; nothing when it stays.
    const std::optional<Text>& NewFolder() const { return m_newFolder; }

private:
    void MakeDirEnter();

    Workbench& m_bench;
    FolderBoxes* m_boxes;
    QLineEdit* txtFolder;
    std::optional<Text> m_newFolder;
};

} // namespace orvane
