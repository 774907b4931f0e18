#pragma once

#include "core/workbench.h"
#include "delivery/required_files.h"

#include <QWidget>

#include <optional>

class QLabel;
class QPushButton;

namespace orvane {

class FileNameBox;

/// The delivery wizard's page that puts the effect into the author's page, or into a new one.
class InsertPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the desk refers to must outlive the panel.
    InsertPanel(Workbench& bench, const CopyDesk& desk);

    /// The page comes to the front with the controls for a new page or for one that is there.
    void Begin(bool isNewPage);

    /// The command that waits to be done; null when it was done.
    /// A new page and one that is there have each their own.
    QPushButton* Action(bool isNewPage) const;

    /// An existing page lost the effect again, so that Auto-insert is the action anew.
    void EffectTakenBack() { m_isInserted = false; }

signals:
    void Complained(const orvane::Complaint& complaint);
    /// The effect cannot be inserted without the author, who goes on by hand.
    void ManualWanted();
    /// The page is written, and what its files need is done or was told.
    void Delivered();
    /// A new page is written to the folder, but some of its files are not.
    void FilesMissing(const orvane::Text& folder);

private:
    void BrowseForPage();
    void TakePage(const Text& path);
    /// The effect stands in the page with this full path.
    void WriteDown(const Text& page);
    void InsertIntoPage();
    void SaveWebPage();
    /// Whether all is there; nothing when a fault ended the copying and the author was told.
    std::optional<bool> CopyFiles(TextView folder);

    Workbench& m_bench;
    const CopyDesk m_desk;
    bool m_isInserted = false;
    bool m_isSaved = false;

    QLabel* lblAutoStep1;
    QLabel* lblAutoStep2;
    QLabel* lblAutoStep3;
    FileNameBox* txtFileName;
    QPushButton* cmdBrowse;
    QPushButton* cmdRecentPages;
    QPushButton* cmdAutoInsert;
    QLabel* lblBackupFile;
    QPushButton* cmdSaveWebPage;
};

} // namespace orvane
