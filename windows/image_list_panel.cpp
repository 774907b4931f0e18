#include "windows/image_list_panel.h"

#include "core/file_names.h"
#include "services/file_complaints.h"
#include "services/recorded_files.h"
#include "windows/file_drop.h"
#include "windows/folder_boxes.h"
#include "windows/picture.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

namespace {

constexpr QSize previewRoom(150, 110);

RowListLook LookOf(const ImageListVariation& variation)
{
    const bool areEnabled = !variation.EnablesButtonsOnAdd;
    return {.Columns = variation.Columns,
            .Words = variation.Words,
            .Buttons = {{RowCommand::MoveUp, "cmdMoveUp", u"Move Up", {}, areEnabled},
                        {RowCommand::MoveDown, "cmdMoveDown", u"Move Down", {}, areEnabled},
                        {RowCommand::Remove, "cmdDelete", u"Delete", {}, areEnabled}},
            .RowTip = variation.RowTip,
            .HasButtonsBelow = true};
}

} // namespace

ImageListPanel::ImageListPanel(Workbench& bench, RequiredFiles& files,
                               const ImageListVariation& variation, QWidget* parent)
    : QWidget(parent), m_bench(bench), m_files(files), m_variation(variation)
{
    m_boxes = new FolderBoxes(m_bench.Files, {"Drive1", "Dir1", "File1"}, imageMasks);
    m_boxes->GoTo(m_bench.Core.DefaultPath);
    m_boxes->FileBox()->setToolTip(ToQt(variation.FilesTip));
    m_boxes->FileBox()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    cmdAdd = MakeButton(variation.AddButton, variation.AddCaption, variation.AddTip);
    m_list = new RowListPanel(LookOf(variation), bench.Dialogs);
    Arrange();
    Connect();
}

QWidget* ImageListPanel::MakePreview()
{
    auto* frame = new QGroupBox(ToQt(m_variation.PreviewFrame));
    m_preview = new QLabel;
    m_preview->setObjectName(QStringLiteral("lblPreviewImage"));
    m_preview->setAccessibleName(ToQt(m_variation.PreviewFrame));
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setMinimumSize(previewRoom);
    (new QVBoxLayout(frame))->addWidget(m_preview);
    return frame;
}

/// Left what there is to pick from, right what was picked, the way from one to the other between.
void ImageListPanel::Arrange()
{
    auto* middle = new QVBoxLayout;
    middle->addStretch(1);
    middle->addWidget(cmdAdd);
    middle->addStretch(1);
    if (!m_variation.PreviewFrame.empty())
        middle->addWidget(MakePreview());
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_boxes, 2);
    all->addLayout(middle);
    all->addWidget(m_list, m_variation.Columns.size() > 1 ? 5 : 2);
}

void ImageListPanel::Connect()
{
    connect(m_boxes, &FolderBoxes::FolderPicked, this,
            [this] { SaveDefaultPath(m_bench.Core, m_bench.Settings, m_boxes->Folder()); });
    connect(m_boxes, &FolderBoxes::FileSelected, this, [this] {
        if (const Text name = m_boxes->FileName(); !name.empty())
            LoadPictureOf(PathIn(m_boxes->Folder(), name));
    });
    connect(m_boxes, &FolderBoxes::FileActivated, this, &ImageListPanel::AddImageToList);
    connect(new FileDrop(*m_list, imageMasks, m_bench), &FileDrop::Dropped, this,
            &ImageListPanel::AddFiles);
    connect(cmdAdd, &QPushButton::clicked, this, &ImageListPanel::AddSelectedFiles);
    connect(m_list, &RowListPanel::RowSelected, this, &ImageListPanel::ShowPictureOfRow);
    if (m_variation.EnablesButtonsOnAdd)
        connect(m_list, &RowListPanel::RowsChanged, this, [this] {
            if (!m_list->Rows().empty())
                m_list->EnableButtons();
        });
}

void ImageListPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo))
        m_list->PutRowBack();
    else
        QWidget::keyPressEvent(event);
}

void ImageListPanel::SetSizeFields(QLineEdit* width, QLineEdit* height)
{
    m_width = width;
    m_height = height;
}

/// A file that is no picture leaves the one before it and its size.
void ImageListPanel::LoadPictureOf(const Text& path)
{
    const auto picture = LoadPicture(ToQt(path), previewRoom);
    if (!picture)
        return;
    m_pictureSize = picture->Size;
    if (m_preview != nullptr)
        m_preview->setPixmap(QPixmap::fromImage(picture->Thumbnail));
}

void ImageListPanel::ShowPictureOfRow()
{
    if (m_preview == nullptr)
        return;
    const Text path =
        m_list->Selected() ? SourceOf(m_files, m_list->SelectedRow().front()) : Text();
    const auto picture = LoadPicture(ToQt(path), previewRoom);
    m_preview->setPixmap(picture ? QPixmap::fromImage(picture->Thumbnail) : QPixmap());
}

void ImageListPanel::AddSelectedFiles()
{
    if (m_boxes->SelectedFiles().empty())
        return m_bench.Dialogs.Say(noImageSelected);
    AddImageToList();
}

void ImageListPanel::AddImageToList()
{
    std::vector<Text> paths;
    for (const Text& name : m_boxes->SelectedFiles())
        paths.push_back(PathIn(m_boxes->Folder(), name));
    if (!paths.empty())
        AddFiles(paths);
}

/// Adds what can be added, and says each thing that speaks against the others once.
void ImageListPanel::AddFiles(const std::vector<Text>& paths)
{
    // The buttons come alive even if the name is refused.
    if (m_variation.EnablesButtonsOnAdd)
        m_list->EnableButtons();
    FileComplaints refused;
    RowTexts rows;
    for (const Text& path : paths) {
        if (const auto complaint = Take(path))
            refused.Add(*complaint, Trim(GetFileName(path)));
        else
            rows.push_back(TextsOf(ImageRow{.FileName = Text(GetFileName(path))}));
    }
    m_list->InsertRows(std::move(rows));
    const std::vector<Complaint> complaints = refused.All();
    if (!complaints.empty())
        ShowPictureOfRow(); // in place of a refused one
    for (const Complaint& complaint : complaints)
        m_bench.Dialogs.Say(complaint.Words, complaint.Look);
}

/// Records the file of an image and lets the size fields grow to it, or gives what speaks against.
std::optional<Complaint> ImageListPanel::Take(const Text& path)
{
    if (auto complaint = RecordImage(m_files, FolderOf(path), GetFileName(path)))
        return complaint;
    LoadPictureOf(path);
    if (m_width == nullptr)
        return std::nullopt;
    m_width->setText(ToQt(GrownField(FromQt(m_width->text()), m_pictureSize.width())));
    m_height->setText(ToQt(GrownField(FromQt(m_height->text()), m_pictureSize.height())));
    return std::nullopt;
}

} // namespace orvane
