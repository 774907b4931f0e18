#include "delivery/publish_panel.h"

#include "windows/folder_boxes.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

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
    column->addWidget(boxes, 1);
}

} // namespace

PublishPanel::PublishPanel(const CopyDesk& desk, MakeFolderWindow makeFolder)
    : m_desk(desk), m_makeFolder(std::move(makeFolder))
{
    auto* sides = new QHBoxLayout;
    sides->addWidget(MakeFromSide(), 1);
    sides->addWidget(MakeToSide(), 1);
    sides->addWidget(MakeMissingSide(), 1);
    Label4 = new QLabel(ToQt(publishHint));
    Label4->setObjectName(QStringLiteral("Label4"));
    Label4->setWordWrap(true);
    auto* all = new QVBoxLayout(this);
    all->addLayout(sides, 1);
    all->addWidget(Label4);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdCopyFiles =
                           MakeButton("cmdCopyFiles", "&Publish >>", &PublishPanel::PublishFiles));
    buttons->addWidget(cmdManualCopy =
                           MakeButton("cmdManualCopy", "C&opy >>", &PublishPanel::CopyByHand));
    buttons->addWidget(
        cmdDoneCopying = MakeButton("cmdDoneCopying", "&Done Copying", &PublishPanel::CopyingDone));
    picCopyThenPreview = new QWidget;
    picCopyThenPreview->setObjectName(QStringLiteral("picCopyThenPreview"));
    auto* previewButtons = new QHBoxLayout(picCopyThenPreview);
    previewButtons->setContentsMargins({});
    previewButtons->addWidget(
        MakeButton("cmdManualCopyForPreview", "C&opy >>", &PublishPanel::CopyByHand));
    previewButtons->addWidget(
        MakeButton("cmdPreviewAfterCopying", "Click to Pre&view", &PublishPanel::PreviewWanted));
    buttons->addWidget(picCopyThenPreview);
    buttons->addStretch(1);
    all->addLayout(buttons);
}

QWidget* PublishPanel::MakeFromSide()
{
    m_from = new FolderBoxes(m_desk.Files,
                             {"driveCopyFrom", "dirCopyFrom", "fileCopyFrom"},
                             u"*.*");
    m_from->FileBox()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* side = new QWidget;
    AddBoxes(MakeColumn(side), u"Copy from:", m_from);
    return side;
}

QWidget* PublishPanel::MakeToSide()
{
    auto* side = new QWidget;
    m_to = new FolderBoxes(
        m_desk.Files,
        {"driveCopyTo", "dirCopyTo", "fileCopyTo"},
        u"*.*");
    cmdNewFolder = MakeButton("cmdNewFolder", "Ne&w Folder...", &PublishPanel::MakeFolder);
    QVBoxLayout* column = MakeColumn(side);
    AddBoxes(column, u"Copy to:", m_to);
    column->addWidget(cmdNewFolder, 0, Qt::AlignLeft);
    return side;
}

QWidget* PublishPanel::MakeMissingSide()
{
    m_missingSide = new QWidget;
    QVBoxLayout* column = MakeColumn(m_missingSide);
    auto* caption = new QLabel(ToQt(missingFilesLabel));
    lstMissingFiles = new QListWidget;
    lstMissingFiles->setObjectName(QStringLiteral("lstMissingFiles"));
    lstMissingFiles->setAccessibleName(QStringLiteral("Missing Files"));
    caption->setBuddy(lstMissingFiles);
    column->addWidget(caption);
    column->addWidget(lstMissingFiles, 1);
    return m_missingSide;
}

QPushButton* PublishPanel::MakeButton(const char* name, const char* caption,
                                      void (PublishPanel::*action)())
{
    auto* button = new QPushButton(QLatin1String(caption));
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void PublishPanel::Begin()
{
    m_missing.clear();
    lstMissingFiles->clear();
    m_to->Refresh();
    Show(PublishMode::Publish);
}

void PublishPanel::FindMissing(PublishMode mode, const MissingFiles& missing, TextView toFolder)
{
    m_missing = missing;
    m_toFolder = toFolder;
    m_to->GoTo(toFolder);
    lstMissingFiles->clear();
    for (const Text& name : m_missing)
        lstMissingFiles->addItem(ToQt(name));
    Show(mode);
}

void PublishPanel::Show(PublishMode mode)
{
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
}

void PublishPanel::PublishFiles()
{
    const Text folder = m_to->Folder();
    const auto copied = Publish(m_desk, folder);
    m_to->Refresh();
    if (const Fault* fault = FaultIn(copied))
        m_desk.Dialogs.Say(Words(*fault));
    else if (!ValueIn(copied).empty())
        FindMissing(PublishMode::MissingFiles, ValueIn(copied), folder);
}

void PublishPanel::CopyByHand()
{
    const bool isForPreview = picCopyThenPreview->isVisibleTo(this);
    const Text folder = isForPreview ? m_toFolder : m_to->Folder();
    ManualCopy(m_desk, m_from->Folder(), folder, m_from->SelectedFiles(), m_missing);
    m_to->Refresh();
    lstMissingFiles->clear();
    for (const Text& name : m_missing)
        lstMissingFiles->addItem(ToQt(name));
}

void PublishPanel::MakeFolder()
{
    if (const auto folder = m_makeFolder(m_to->Folder())) {
        m_to->Refresh();
        m_to->GoTo(*folder);
    }
}

} // namespace orvane
