#include "windows/folder_boxes.h"

#include "windows/qt_text.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QStorageInfo>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int depthRole = Qt::UserRole + 1;

/// Volumes of the system itself, on which no author keeps pages or pictures.
bool IsSystemVolume(const QString& root)
{
    if (root.startsWith(QLatin1String("/run/media/")))
        return false;
    for (const char* part : {"/proc", "/sys", "/dev", "/run", "/boot", "/snap"})
        if (root == QLatin1String(part) || root.startsWith(QLatin1String(part) + u'/'))
            return true;
    return false;
}

/// Draws a folder's row further in the deeper it lies.
class DepthDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem moved = option;
        moved.rect.setLeft(option.rect.left() + Indent(option, index));
        QStyledItemDelegate::paint(painter, moved, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(Indent(option, index), 0);
    }

private:
    static int Indent(const QStyleOptionViewItem& option, const QModelIndex& index)
    {
        return index.data(depthRole).toInt() * option.fontMetrics.averageCharWidth();
    }
};

} // namespace

std::vector<Text> MountedDrives()
{
    std::vector<Text> drives = {Text(1, u'/')};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString root = volume.rootPath();
        // Single files can be mounted as well.
        if (root != QLatin1String("/") && volume.isReady() && !IsSystemVolume(root) &&
            QFileInfo(root).isDir())
            drives.push_back(FromQt(root));
    }
    return drives;
}

FolderBoxes::FolderBoxes(const FileStore& files, const FolderBoxNames& names, TextView masks,
                         QWidget* parent)
    : QWidget(parent),
      m_store(files),
      m_masks(masks),
      m_driveList(MountedDrives()),
      m_folder(1, u'/'),
      m_drives(new QComboBox),
      m_folders(new ActingList)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    AddBox(column, names.Drive, u"Drive:", m_drives, 0);
    AddBox(column, names.Folder, u"Folder:", m_folders, 2);
    for (const Text& drive : m_driveList)
        m_drives->addItem(ToQt(drive));
    connect(m_drives, &QComboBox::activated, this, &FolderBoxes::PickDrive);
    const int iconSide = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_folders->setIconSize({iconSide, iconSide});
    m_folders->setItemDelegate(new DepthDelegate(m_folders));
    const auto pick = [this] { PickFolder(m_folders->SelectedRow()); };
    connect(m_folders, &ActingList::Entered, this, pick);
    connect(m_folders, &QListWidget::itemDoubleClicked, this, pick);
    if (!names.File.empty()) {
        m_files = new ActingList;
        AddBox(column, names.File, u"Files:", m_files, 3);
        connect(m_files, &QListWidget::itemSelectionChanged, this, &FolderBoxes::FileSelected);
    }
    if (!GoTo(FromQt(QDir::homePath())))
        GoTo(Text(m_folder));
}

void FolderBoxes::connectNotify(const QMetaMethod& signal)
{
    if (m_files == nullptr || signal != QMetaMethod::fromSignal(&FolderBoxes::FileActivated))
        return;
    for (const auto act : {&ActingList::RowDoubleClicked, &ActingList::Entered})
        connect(m_files, act, this, &FolderBoxes::FileActivated, Qt::UniqueConnection);
}

void FolderBoxes::AddBox(QVBoxLayout* column, ControlName name, TextView caption, QWidget* box,
                         int stretch)
{
    auto* label = new QLabel(ToQt(caption));
    label->setBuddy(box);
    box->setObjectName(ToQt(name));
    box->setAccessibleName(SpokenName(caption));
    box->setSizePolicy(QSizePolicy::Ignored, box->sizePolicy().verticalPolicy());
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * 26);
    column->addWidget(label);
    column->addWidget(box, stretch);
}

bool FolderBoxes::GoTo(TextView folder)
{
    const auto list = ListFolders(m_store, folder);
    if (!list)
        return false;
    m_folder = list->Rows[list->Current].Path;
    ShowFolders(*list);
    ShowFiles();
    ShowDrive();
    return true;
}

void FolderBoxes::ShowDrive()
{
    m_drives->setCurrentIndex(static_cast<int>(DriveOf(m_driveList, m_folder).value_or(0)));
}

void FolderBoxes::Refresh()
{
    GoTo(Text(m_folder));
}

void FolderBoxes::ShowFolders(const FolderRows& list)
{
    m_folders->clear();
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirIcon);
    for (std::size_t i = 0; i < list.Rows.size(); ++i) {
        const FolderRow& row = list.Rows[i];
        auto* item = new QListWidgetItem(i <= list.Current ? open : closed, ToQt(row.Name));
        item->setData(pathRole, ToQt(row.Path));
        item->setData(depthRole, static_cast<int>(row.Depth));
        m_folders->addItem(item);
    }
    m_folders->setCurrentRow(static_cast<int>(list.Current));
}

void FolderBoxes::ShowFiles()
{
    if (m_files == nullptr)
        return;
    m_files->clear();
    for (const Text& name : ListFiles(m_store, m_folder, m_masks))
        m_files->addItem(ToQt(name));
}

void FolderBoxes::PickDrive(int index)
{
    if (GoTo(FromQt(m_drives->itemText(index))))
        return emit FolderPicked();
    QApplication::beep();
    ShowDrive();
}

void FolderBoxes::PickFolder(int row)
{
    if (row < 0)
        return;
    if (GoTo(FromQt(m_folders->item(row)->data(pathRole).toString())))
        emit FolderPicked();
    else
        QApplication::beep();
}

Text FolderBoxes::FileName() const
{
    const QListWidgetItem* item = m_files == nullptr ? nullptr : m_files->currentItem();
    return item != nullptr && item->isSelected() ? FromQt(item->text()) : Text();
}

std::vector<Text> FolderBoxes::SelectedFiles() const
{
    std::vector<Text> names;
    for (int row = 0; m_files != nullptr && row < m_files->count(); ++row)
        if (m_files->item(row)->isSelected())
            names.push_back(FromQt(m_files->item(row)->text()));
    return names;
}

} // namespace orvane
