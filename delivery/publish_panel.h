#pragma once

#include "core/settings.h"
#include "delivery/publish_mode.h"
#include "delivery/required_files.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QListWidget;
class QPushButton;

namespace orvane {

class FolderBoxes;
class PageBuilder;

/// Lets the author make a folder in the given one; gives its full path, or nothing when none was
/// made.
using MakeFolderWindow = std::function<std::optional<Text>(TextView folder)>;

/// The delivery wizard's page that copies the required files to a folder, and on which the author
/// looks for missing ones by hand.
class PublishPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the job refers to, and the settings, must outlive the panel.
    PublishPanel(const CopyJob& job, Settings& settings, MakeFolderWindow makeFolder);

    /// Called when the page is shown: shows the publishing controls, with no file missing.
    void PageShown();

    /// Shows a folder in the "Copy to" boxes; does nothing when it cannot be read.
    void GoTo(TextView folder);

    /// Shows the controls with which the author finds the missing files and copies them to
    /// `toFolder`. Expects one of the modes for missing files.
    void FindMissing(PublishMode mode, const MissingFiles& missing, TextView toFolder);

    /// The button that Enter is to press in this mode; null when everything was published to the
    /// folder that is shown.
    QPushButton* DefaultButton() const;

signals:
    /// The wizard's own buttons are to be shown or hidden with those of this panel.
    void ControlsChanged(const orvane::PublishControls& controls);
    /// DefaultButton() may give another button now.
    void DefaultButtonChanged();
    /// The author has finished copying missing files by hand.
    void CopyingDone();
    /// The author has copied what the preview lacked and wants to see it.
    void PreviewWanted();

private:
    QWidget* MakeFromSide(QWidget* all);
    QWidget* MakeToSide(QWidget* all);
    QWidget* MakeMissingSide(QWidget* all);
    QPushButton* MakeButton(PageBuilder& page, ControlName name, TextView caption,
                            void (PublishPanel::*action)());
    void Show(PublishMode mode);
    void ShowMissing();
    void PublishFiles();
    void CopyByHand();
    void MakeFolder();
    void GoToLastFolder();
    void StartBesideThePage();

    const CopyJob m_job;
    Settings& m_settings;
    MakeFolderWindow m_makeFolder;
    PublishMode m_mode = PublishMode::Publish;
    bool m_hasStarted = false; ///< the "Copy to" boxes show a folder that somebody chose
    Text m_publishedTo;        ///< the folder to which everything was published last
    MissingFiles m_missing;
    Text m_toFolder; ///< where the files go that the preview lacks

    FolderBoxes* m_from;
    FolderBoxes* m_to;
    QPushButton* cmdLastFolder;
    QPushButton* cmdCopyFiles;
    QPushButton* cmdManualCopy;
    QPushButton* cmdDoneCopying;
    QWidget* picCopyThenPreview;
    QPushButton* cmdManualCopyForPreview;
    QPushButton* cmdPreviewAfterCopying;
    QLabel* Label4;
    QWidget* m_missingSide;
    QListWidget* lstMissingFiles;
};

} // namespace orvane
