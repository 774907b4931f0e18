#pragma once

#include "core/workbench.h"
#include "delivery/delivered_pages.h"
#include "delivery/required_files.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace orvane {

/// The full path of the file of that name that the author picked in the effect's wizard; nothing
/// when none was.
using PickedFileFinder = std::function<std::optional<Text>(const Text& name)>;

class PageBuilder;

/// The delivery wizard's last page: what was done, and what is left for the author to do.
class FinishPanel : public QWidget
{
    Q_OBJECT

public:
    /// Bench and what the job refers to must outlive the panel.
    FinishPanel(Workbench& bench, const CopyJob& job, PickedFileFinder pickedFile);

    /// Called when the page is shown or something was done: looks at the disk, and shows what is
    /// so, the buttons that apply and the files to upload anew.
    void PageShown();

signals:
    /// The author wants an earlier version of the page with this full path.
    void BringBackWanted(const orvane::Text& page);
    /// The author wants to see the effects on the page with this full path.
    void PageEffectsWanted(const orvane::Text& page);
    /// The author wants the effect in another page as well.
    void AnotherPageWanted();
    /// The author wants the page script in the pages of these full paths.
    void PageScriptWanted(const std::vector<orvane::Text>& pages);

private:
    void AddPageFiles(PageBuilder& page);
    void AddUploads(PageBuilder& page);
    void ListPageFiles();
    void ListFiles(const std::vector<Text>& names);
    /// Enables the button that copies where the selected row is a file that is not there.
    void UpdateCopy();
    void CopySelected();

    Workbench& m_bench;
    const CopyJob m_job;
    const PickedFileFinder m_pickedFile;
    std::vector<DeliveredPage> m_pages; ///< as they were when the disk was looked at last
    QLabel* lblReport;
    QPushButton* cmdRunsToday;
    QPushButton* cmdPutIntoAnother;
    QPushButton* cmdOpenPage;
    QPushButton* cmdOpenFolder;
    QPushButton* cmdBringBack;
    QPushButton* cmdPageEffects;
    QWidget* m_pageFiles; ///< `lstPageFiles` with its label and button
    QListWidget* lstPageFiles;
    QPushButton* cmdCopyHere;
    QWidget* m_uploads; ///< `lstFilesToUpload` with its label, and the help on uploading
    QListWidget* lstFilesToUpload;
};

} // namespace orvane
