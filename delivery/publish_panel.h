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

/// Lets the author make a folder below the given one; the new folder, or nothing.
using MakeFolderWindow = std::function<std::optional<Text>(TextView folder)>;

/// The delivery wizard's page that brings the required files to a folder, and finds those that are
/// missing by hand.
class PublishPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the desk refers to must outlive the panel.
    PublishPanel(const CopyDesk& desk, Settings& settings, MakeFolderWindow makeFolder);

    /// Shows the publishing controls, with no file missing.
    void Begin();

    /// Points the boxes of the target at the folder to which files go.
    void GoTo(TextView folder);

    /// Shows the controls with which missing files are found and brought to a folder.
    void FindMissing(PublishMode mode, const MissingFiles& missing, TextView toFolder);

    /// The command that waits to be done; null when all was published.
    QPushButton* Action() const;

signals:
    /// The wizard's own buttons are to be shown or hidden with those of this panel.
    void ControlsChanged(const orvane::PublishControls& controls);
    /// Another command waits now.
    void ActionChanged();
    void CopyingDone();
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

    const CopyDesk m_desk;
    Settings& m_settings;
    MakeFolderWindow m_makeFolder;
    PublishMode m_mode = PublishMode::Publish;
    bool m_isPublished = false;
    MissingFiles m_missing;
    Text m_toFolder; ///< where copies made by hand go

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
