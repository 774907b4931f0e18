#pragma once

#include "core/workbench.h"
#include "delivery/required_files.h"

#include <QWidget>

#include <optional>

class QLabel;
class QPushButton;

namespace orvane {

class FileNameBox;
class LinkLabel;

/// The delivery wizard's page that puts the effect into the author's page, or into a new one.
class InsertPanel : public QWidget
{
    Q_OBJECT

public:
    /// Bench and what the job refers to must outlive the panel.
    InsertPanel(Workbench& bench, const CopyJob& job);

    /// Called when the page is shown: shows the controls for a new page or for an existing one.
    void PageShown(bool isNewPage);

    /// Puts the effect into the page with this full path, as "Auto-insert" does when it is named.
    void PutInto(const Text& page);

    /// The button that Enter is to press: "Save as New Web page" for a new page, "Auto-insert" for
    /// an existing one; null once that succeeded.
    QPushButton* DefaultButton(bool isNewPage) const;

    /// Called when the page with this full path was brought back to an earlier version:
    /// DefaultButton() gives the button that wrote it again.
    void EffectTakenBack(TextView page);

signals:
    /// The name of the page cannot be used.
    void Complained(const orvane::Complaint& complaint);
    /// The effect cannot be inserted automatically into the page with this full path; the author
    /// has to copy its code by hand.
    void ManualWanted(const orvane::Text& page);
    /// The author wants to point at the place for the effect in the page with this full path.
    void PointingWanted(const orvane::Text& page);
    /// The page is written and its files are copied; for an existing page also when the author was
    /// told that some are missing or ended the copying.
    void Delivered();
    /// A new page is written to this folder, but some of its files could not be copied there.
    void FilesMissing(const orvane::Text& folder);

private:
    void BrowseForPage();
    void TakePage(const Text& path);
    /// Notes the written page in the report and among the recent pages.
    void NotePage(const Text& page);
    void InsertIntoPage();
    Text NamedPage() const;
    bool IsPastLimit(const Text& page) const;
    void SaveWebPage();
    /// Copies the files that the page needs; true when all are there. Nothing when a fault ended
    /// the copying, which the author was told.
    std::optional<bool> CopyFiles(TextView folder);

    Workbench& m_bench;
    const CopyJob m_job;
    Text m_insertedInto; ///< full path of the page, while `txtFileName` names it
    Text m_savedAs;      ///< full path of the new page

    QLabel* lblAutoStep1;
    QLabel* lblAutoStep2;
    QLabel* lblAutoStep3;
    FileNameBox* txtFileName;
    QPushButton* cmdBrowse;
    QPushButton* cmdRecentPages;
    LinkLabel* lblPutByPointing;
    QPushButton* cmdAutoInsert;
    QLabel* lblBackupFile;
    QPushButton* cmdSaveWebPage;
};

} // namespace orvane
