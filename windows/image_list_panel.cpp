#include "windows/image_list_panel.h"

#include "core/file_names.h"
#include "services/file_complaints.h"
#include "services/move_row.h"
#include "services/recorded_files.h"
#include "windows/file_drop.h"
#include "windows/folder_boxes.h"
#include "windows/parallel_lists.h"
#include "windows/picture.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaMethod>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr QSize previewRoom(150, 110);

std::vector<ListColumn> ColumnsOf(const ImageListVariation& variation)
{
    std::vector<ListColumn> columns;
    for (const ImageListColumn& column : variation.Columns)
        columns.push_back({column.Name, column.Header});
    return columns;
}

} // namespace

ImageListPanel::ImageListPanel(Workbench& bench, const ImageListVariation& variation,
                               QWidget* parent)
    : QWidget(parent), m_bench(bench), m_variation(variation)
{
    ClearRequiredFiles(m_bench.Core);
    m_boxes = new FolderBoxes(m_bench.Files, {"Drive1", "Dir1", "File1"}, imageMasks);
    m_boxes->GoTo(m_bench.Core.DefaultPath);
    m_boxes->FileBox()->setToolTip(ToQt(variation.FilesTip));
    m_boxes->FileBox()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    cmdAdd = MakeButton(variation.AddButton, variation.AddCaption, variation.AddTip);
    m_lists = new ParallelLists(ColumnsOf(variation), variation.RowTip);
    cmdMoveUp = MakeButton("cmdMoveUp", u"Move Up", TipOf(RowCommand::MoveUp));
    cmdMoveDown = MakeButton("cmdMoveDown", u"Move Down", TipOf(RowCommand::MoveDown));
    cmdDelete = MakeButton("cmdDelete", u"Delete", TipOf(RowCommand::Remove));
    EnableListButtons(!variation.EnablesButtonsOnAdd);
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
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdMoveUp, cmdMoveDown, cmdDelete})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* right = new QVBoxLayout;
    right->addWidget(m_lists, 1);
    right->addLayout(buttons);
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_boxes, 2);
    all->addLayout(middle);
    all->addLayout(right, m_variation.Columns.size() > 1 ? 5 : 2);
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
    connect(new FileDrop(*m_lists, imageMasks, m_bench.Dialogs), &FileDrop::Dropped, this,
            &ImageListPanel::AddFiles);
    connect(cmdAdd, &QPushButton::clicked, this, &ImageListPanel::AddSelectedFiles);
    connect(cmdMoveUp, &QPushButton::clicked, this,
            [this] { Tell(MoveUp(m_list, m_variation.ListInMessages)); });
    connect(cmdMoveDown, &QPushButton::clicked, this,
            [this] { Tell(MoveDown(m_list, m_variation.ListInMessages)); });
    connect(cmdDelete, &QPushButton::clicked, this, &ImageListPanel::Remove);
    connect(m_lists, &ParallelLists::RowDeleted, this, &ImageListPanel::Remove);
    connect(m_lists, &ParallelLists::MoveWanted, this, [this](int place) {
        MoveSelectedTo(m_list, static_cast<std::size_t>(place));
        ShowList();
    });
    connect(m_lists, &ParallelLists::RowSelected, this, [this](int row) {
        m_list.Selected = row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
        ShowPictureOfRow();
        emit RowSelected();
    });
    connect(m_lists, &ParallelLists::MenuRequested, this, [this](QPoint place) {
        if (m_list.Selected)
            emit MenuRequested(place);
    });
}

void ImageListPanel::connectNotify(const QMetaMethod& signal)
{
    if (signal == QMetaMethod::fromSignal(&ImageListPanel::RowActivated))
        connect(m_lists, &ParallelLists::RowActivated, this, &ImageListPanel::RowActivated,
                Qt::UniqueConnection);
}

void ImageListPanel::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Undo))
        return QWidget::keyPressEvent(event);
    if (!m_removed.PutBack(m_list))
        return;
    ShowList();
    ShowPictureOfRow();
    emit RowSelected();
}

void ImageListPanel::Remove()
{
    if (m_list.Selected)
        m_removed.Keep(*m_list.Selected, m_list.Rows[*m_list.Selected]);
    DeleteRow(m_list);
    ShowList();
}

void ImageListPanel::SetSizeFields(QLineEdit* width, QLineEdit* height)
{
    m_width = width;
    m_height = height;
}

void ImageListPanel::SetRows(std::vector<ImageRow> rows)
{
    m_list = {.Rows = std::move(rows), .Selected = {}};
    m_removed.Forget();
    if (!m_list.Rows.empty())
        EnableListButtons(true);
    ShowList();
}

void ImageListPanel::SetRow(std::size_t index, ImageRow row)
{
    m_list.Rows.at(index) = std::move(row);
    m_list.Selected = index;
    ShowList();
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
        m_list.Selected ? SourceOf(m_bench.Core, m_list.Rows[*m_list.Selected].FileName) : Text();
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
        EnableListButtons(true);
    FileComplaints refused;
    std::size_t place = PlaceToAdd(m_list);
    for (const Text& path : paths) {
        if (const auto complaint = AddFile(path, place))
            refused.Add(*complaint, Trim(GetFileName(path)));
        else
            ++place;
    }
    ShowList();
    const std::vector<Complaint> complaints = refused.All();
    if (!complaints.empty())
        ShowPictureOfRow(); // in place of a refused one
    if (m_list.Selected)
        emit RowSelected();
    for (const Complaint& complaint : complaints)
        m_bench.Dialogs.Say(complaint.Words, complaint.Look);
}

std::optional<Complaint> ImageListPanel::AddFile(const Text& path, std::size_t place)
{
    if (auto complaint =
            orvane::AddImageToList(m_list, m_bench.Core, place, FolderOf(path), GetFileName(path)))
        return complaint;
    LoadPictureOf(path);
    if (m_width == nullptr)
        return std::nullopt;
    m_width->setText(ToQt(GrownField(FromQt(m_width->text()), m_pictureSize.width())));
    m_height->setText(ToQt(GrownField(FromQt(m_height->text()), m_pictureSize.height())));
    return std::nullopt;
}

void ImageListPanel::ShowList()
{
    RowList rows{.Rows = {}, .Selected = m_list.Selected};
    for (const ImageRow& image : m_list.Rows) {
        std::vector<Text>& row = rows.Rows.emplace_back();
        for (const ImageListColumn& column : m_variation.Columns)
            row.push_back(image.*column.Field);
    }
    m_lists->Show(rows);
    emit RowsChanged();
}

void ImageListPanel::EnableListButtons(bool isOn)
{
    for (QPushButton* button : {cmdMoveUp, cmdMoveDown, cmdDelete})
        button->setEnabled(isOn);
}

/// Ends a command on the list: shows what became of it, or why nothing did.
void ImageListPanel::Tell(const std::optional<Complaint>& complaint)
{
    if (complaint)
        m_bench.Dialogs.Say(complaint->Words, complaint->Look);
    else
        ShowList();
}

} // namespace orvane
