#include "delivery/publish_panel.h"

#include "core/file_names.h"
#include "delivery/manual_copy.h"
#include "services/folder_memory.h"
#include "services/page_requests.h"
#include "services/recent_files.h"
#include "windows/folder_boxes.h"
#include "windows/page_builder.h"
#include "windows/plain_tip.h"
#include "windows/qt_text.h"
#include "windows/shrinking.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

/// A side of the panel that takes its share of the width.
QVBoxLayout* MakeColumn(QWidget* side)
{
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins({});
    return column;
}

/// Puts the boxes below words that tell them, seen or heard, from those of the other side.
void AddBoxes(QVBoxLayout* column, TextView words, FolderBoxes* boxes)
{
    column->addWidget(new QLabel(ToQt(words)));
    for (QWidget* box :
         std::initializer_list<QWidget*>{boxes->DriveBox(), boxes->FolderBox(), boxes->FileBox()})
        box->setAccessibleName(ToQt(words) + u' ' + box->accessibleName());
    for (QWidget* list : std::initializer_list<QWidget*>{boxes->FolderBox(), boxes->FileBox()})
        list->setMinimumHeight(3 * list->fontMetrics().lineSpacing());
    column->addWidget(boxes, 1);
}

} // namespace

PublishPanel::PublishPanel(const CopyJob& job, Settings& settings, MakeFolderWindow makeFolder)
    : m_job(job), m_settings(settings), m_makeFolder(std::move(makeFolder))
{
    PageBuilder page(this);
    auto* all = new QWidget(this);
    auto* sides = new QHBoxLayout(all);
    sides->setContentsMargins({});
    sides->addWidget(MakeFromSide(all), 1);
    sides->addWidget(MakeToSide(all), 1);
    sides->addWidget(MakeMissingSide(all), 1);
    FillShrinking(page, all, 17);
    Label4 = page.Note(publishHint, "Label4");
    cmdCopyFiles = MakeButton(page, "cmdCopyFiles", u"&Publish >>", &PublishPanel::PublishFiles);
    cmdManualCopy = MakeButton(page, "cmdManualCopy", u"C&opy >>", &PublishPanel::CopyByHand);
    cmdDoneCopying =
        MakeButton(page, "cmdDoneCopying", u"&Done Copying", &PublishPanel::CopyingDone);
    page.Buttons({cmdCopyFiles, cmdManualCopy, cmdDoneCopying});
    picCopyThenPreview = new QWidget(this);
    picCopyThenPreview->setObjectName(QStringLiteral("picCopyThenPreview"));
    PageBuilder forPreview(picCopyThenPreview);
    picCopyThenPreview->layout()->setContentsMargins({});
    cmdManualCopyForPreview =
        MakeButton(forPreview, "cmdManualCopyForPreview", u"C&opy >>", &PublishPanel::CopyByHand);
    cmdPreviewAfterCopying = MakeButton(forPreview, "cmdPreviewAfterCopying", u"Click to Pre&view",
                                        &PublishPanel::PreviewWanted);
    forPreview.Buttons({cmdManualCopyForPreview, cmdPreviewAfterCopying});
    page.Row({}, {picCopyThenPreview});
}

QWidget* PublishPanel::MakeFromSide(QWidget* all)
{
    auto* side = new QWidget(all);
    m_from = new FolderBoxes(m_job.Files, {"driveCopyFrom", "dirCopyFrom", "fileCopyFrom"}, u"*.*",
                             side);
    m_from->GoTo(RememberedFolder(m_settings, FolderPurpose::Images));
    m_from->FileBox()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    AddBoxes(MakeColumn(side), u"Copy from:", m_from);
    return side;
}

QWidget* PublishPanel::MakeToSide(QWidget* all)
{
    auto* side = new QWidget(all);
    m_to = new FolderBoxes(m_job.Files, {"driveCopyTo", "dirCopyTo", "fileCopyTo"}, u"*.*", side);
    GoTo(m_job.ProgramFolder);
    // Without the focus, which stays with the author among the folders.
    connect(m_to, &FolderBoxes::FolderMarked, this, [this] {
        m_hasStarted = true;
        if (QPushButton* button = DefaultButton())
            button->setDefault(true);
    });
    QVBoxLayout* column = MakeColumn(side);
    AddBoxes(column, u"Copy to:", m_to);
    PageBuilder below(new QWidget(side));
    below.Page()->layout()->setContentsMargins({});
    column->addWidget(below.Page());
    cmdLastFolder =
        MakeButton(below, "cmdLastFolder", u"&Last Folder", &PublishPanel::GoToLastFolder);
    below.Buttons({MakeButton(below, "cmdNewFolder", u"Ne&w Folder...", &PublishPanel::MakeFolder),
                   cmdLastFolder});
    return side;
}

QWidget* PublishPanel::MakeMissingSide(QWidget* all)
{
    m_missingSide = new QWidget(all);
    PageBuilder side(m_missingSide);
    m_missingSide->layout()->setContentsMargins({});
    lstMissingFiles = side.ListBox("lstMissingFiles", missingFilesLabel, {});
    lstMissingFiles->setAccessibleName(QStringLiteral("Missing Files"));
    return m_missingSide;
}

QPushButton* PublishPanel::MakeButton(PageBuilder& page, ControlName name, TextView caption,
                                      void (PublishPanel::*action)())
{
    QPushButton* button = page.Button(name, caption);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void PublishPanel::PageShown()
{
    m_missing.clear();
    m_to->Refresh();
    StartBesideThePage();
    const Text last = RememberedFolder(m_settings, FolderPurpose::Publishing);
    cmdLastFolder->setVisible(m_job.Files.FolderExists(last));
    cmdLastFolder->setToolTip(PlainTip(last));
    Show(PublishMode::Publish);
}

/// The first time the boxes show the folder of the page, where one is known.
void PublishPanel::StartBesideThePage()
{
    if (m_hasStarted)
        return;
    std::vector<Text> pages = RecentFiles(m_settings, m_job.Files, recentPages);
    if (!m_job.Report.Page().empty())
        pages = {m_job.Report.Page()};
    m_hasStarted = !pages.empty() && m_to->GoTo(FolderOf(pages.front()));
}

void PublishPanel::GoTo(TextView folder)
{
    m_to->GoTo(folder);
}

void PublishPanel::FindMissing(PublishMode mode, const MissingFiles& missing, TextView toFolder)
{
    m_missing = missing;
    m_toFolder = toFolder;
    m_to->GoTo(toFolder);
    Show(mode);
    m_from->FolderBox()->setFocus();
}

QPushButton* PublishPanel::DefaultButton() const
{
    switch (m_mode) {
    case PublishMode::MissingInFolder:
        return m_missing.empty() ? cmdDoneCopying : cmdManualCopy;
    case PublishMode::MissingForPreview:
        return m_missing.empty() ? cmdPreviewAfterCopying : cmdManualCopyForPreview;
    case PublishMode::Publish:
        break;
    }
    return m_to->MarkedFolder() == m_publishedTo ? nullptr : cmdCopyFiles;
}

void PublishPanel::ShowMissing()
{
    lstMissingFiles->clear();
    for (const Text& name : m_missing)
        lstMissingFiles->addItem(ToQt(name));
    emit DefaultButtonChanged();
}

void PublishPanel::Show(PublishMode mode)
{
    m_mode = mode;
    const PublishControls controls = ControlsOf(mode);
    m_from->parentWidget()->setVisible(controls.FromBoxes);
    m_to->parentWidget()->setVisible(controls.ToBoxes);
    m_missingSide->setVisible(controls.lstMissingFiles);
    cmdCopyFiles->setVisible(controls.cmdCopyFiles);
    Label4->setVisible(controls.Label4);
    cmdManualCopy->setVisible(controls.cmdManualCopy);
    cmdDoneCopying->setVisible(controls.cmdDoneCopying);
    picCopyThenPreview->setVisible(controls.picCopyThenPreview);
    emit ControlsChanged(controls);
    ShowMissing();
}

void PublishPanel::PublishFiles()
{
    const Text folder = m_to->MarkedFolder();
    const auto copied = Publish(m_job, folder);
    m_to->GoTo(folder);
    const Fault* fault = FaultIn(copied);
    if (fault == nullptr)
        RememberFolder(m_settings, FolderPurpose::Publishing, folder);
    if (fault != nullptr) {
        // An author who ended the copying has been told, and can publish once more.
        if (*fault != Fault::Cancelled)
            m_job.Dialogs.Say(Words(*fault));
        return;
    }
    if (!ValueIn(copied).empty())
        FindMissing(PublishMode::MissingInFolder, ValueIn(copied), folder);
    else if (std::exchange(m_publishedTo, folder) != folder)
        emit DefaultButtonChanged();
}

void PublishPanel::CopyByHand()
{
    const bool isForPreview = m_mode == PublishMode::MissingForPreview;
    const Text folder = isForPreview ? m_toFolder : m_to->MarkedFolder();
    // What the preview needs is delivered to nobody, and no report of it is shown.
    DeliveryReport unseen;
    const CopyJob job{m_job.Payload, m_job.ProgramFolder, m_job.Files, m_job.Dialogs,
                      isForPreview ? unseen : m_job.Report};
    ManualCopy(job, m_from->Folder(), folder, m_from->SelectedFiles(), m_missing);
    m_to->GoTo(folder);
    ShowMissing();
}

void PublishPanel::GoToLastFolder()
{
    m_to->GoTo(RememberedFolder(m_settings, FolderPurpose::Publishing));
    emit DefaultButtonChanged();
}

void PublishPanel::MakeFolder()
{
    if (const auto folder = m_makeFolder(m_to->MarkedFolder())) {
        m_to->Refresh();
        m_to->GoTo(*folder);
        emit DefaultButtonChanged();
    }
}

} // namespace orvane
