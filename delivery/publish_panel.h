#pragma once

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

/// Lets the author make a folder below the given one; the new folder, or nothing.
using MakeFolderWindow = std::function<std::optional<Text>(TextView folder)>;

/// The delivery wizard's page that brings the required files to a folder, and finds those that are
/// missing by hand.
class PublishPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the desk refers to must outlive the panel.
    PublishPanel(const CopyDesk& desk, MakeFolderWindow makeFolder);

    /// Shows the publishing controls, with no file missing.
    void Begin();

    /// Shows the controls with which missing files are found and brought to a folder.
    void FindMissing(PublishMode mode, const MissingFiles& missing, TextView toFolder);

signals:
    /// The wizard's own buttons are to be shown or hidden with those of this panel.
    void ControlsChanged(const orvane::PublishControls& controls);
    void CopyingDone();
    void PreviewWanted();

private:
    QWidget* MakeFromSide();
    QWidget* MakeToSide();
    QWidget* MakeMissingSide();
    QPushButton* MakeButton(const char* name, const char* caption, void (PublishPanel::*action)());
    void Show(PublishMode mode);
    void PublishFiles();
    void CopyByHand();
    void MakeFolder();

    const CopyDesk m_desk;
    MakeFolderWindow m_makeFolder;
    MissingFiles m_missing;
    Text m_toFolder; ///< where copies made by hand go

    FolderBoxes* m_from;
    FolderBoxes* m_to;
    QPushButton* cmdNewFolder;
    QPushButton* cmdCopyFiles;
    QPushButton* cmdManualCopy;
    QPushButton* cmdDoneCopying;
    QWidget* picCopyThenPreview;
    QLabel* Label4;
    QWidget* m_missingSide;
    QListWidget* lstMissingFiles;
};

} // namespace orvane
