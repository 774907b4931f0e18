#include "windows/folder_boxes.h"

#include "disk/disk_file_store.h"
#include "disk/system_calls.h"
#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"
#include "windows/qt_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace orvane {
namespace {

using namespace orvane::testing;

class FolderBoxesTest : public ::testing::Test
{
protected:
    FolderBoxesTest()
    {
        m_files.Folders = {u"/site", u"/site/pages", u"/site/pictures"};
        m_files.Contents[u"/site/index.html"] = "";
        m_files.Contents[u"/site/README"] = "";
    }

    FakeFileStore m_files;
};

TEST_F(FolderBoxesTest, FolderThatCannotBeReadLeavesEverythingAsItIs)
{
    FolderBoxes boxes(m_files, {"Drive1", "Dir1", "File1"}, u"*.*");
    ASSERT_TRUE(boxes.GoTo(u"/site"));
    m_files.FailOn(u"/site/pages", Fault::PermissionDenied);
    int picked = 0;
    QObject::connect(&boxes, &FolderBoxes::FolderPicked, [&picked] { ++picked; });
    DoubleClickRow(boxes, "Dir1", 2);
    EXPECT_EQ(boxes.Folder(), u"/site");
    EXPECT_EQ(RowsOf(boxes, "File1"), (std::vector<Text>{u"index.html", u"README"}));
    DoubleClickRow(boxes, "Dir1", 3);
    EXPECT_EQ(boxes.Folder(), u"/site/pictures");
    EXPECT_EQ(picked, 1);
}

TEST_F(FolderBoxesTest, SeveralFilesCanBeSelectedAndNewOnesShowAfterRefresh)
{
    FolderBoxes boxes(m_files, {"driveCopyFrom", "dirCopyFrom", "fileCopyFrom"}, u"*.*");
    boxes.FileBox()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    boxes.GoTo(u"/site");
    boxes.FileBox()->selectAll();
    EXPECT_EQ(boxes.SelectedFiles(), (std::vector<Text>{u"index.html", u"README"}));
    m_files.Contents[u"/site/a.gif"] = "";
    boxes.Refresh();
    EXPECT_EQ(RowsOf(boxes, "fileCopyFrom"),
              (std::vector<Text>{u"a.gif", u"index.html", u"README"}));
}

TEST_F(FolderBoxesTest, WorksWithoutAFileBox)
{
    FolderBoxes boxes(m_files, {"driveNew", "dirNew", {}}, {});
    EXPECT_TRUE(boxes.GoTo(u"/site/pages/"));
    EXPECT_EQ(boxes.Folder(), u"/site/pages");
    EXPECT_EQ(boxes.FileBox(), nullptr);
    EXPECT_EQ(boxes.FileName(), u"");
    EXPECT_EQ(RowsOf(boxes, "dirNew"), (std::vector<Text>{u"/", u"site", u"pages"}));
}

TEST(FolderBoxesOnDiskTest, FollowsLinksAndListsNeitherPipesNorHiddenFiles)
{
    const QTemporaryDir folder;
    QDir root(folder.path());
    root.mkpath(QStringLiteral("real"));
    root.mkpath(QStringLiteral(".hidden"));
    QFile::link(root.filePath(QStringLiteral("real")), root.filePath(QStringLiteral("link")));
    for (const char* name : {"real/x.gif", "b.GIF", "a.JPG", ".c.gif", "d.txt"})
        WriteFile((folder.path() + u'/').toStdString() + name, "");
    ASSERT_EQ(mkfifo(root.filePath(QStringLiteral("pipe.gif")).toUtf8().constData(), 0600), 0);

    PosixCalls calls;
    const DiskFileStore store(calls, FromQt(root.filePath(QStringLiteral("state"))));
    FolderBoxes boxes(store, {"Drive1", "Dir1", "File1"}, u"*.jpg;*.gif");
    ASSERT_TRUE(boxes.GoTo(FromQt(folder.path())));
    EXPECT_EQ(RowsOf(boxes, "File1"), (std::vector<Text>{u"a.JPG", u"b.GIF"}));
    const int current = SelectedRowOf(boxes, "Dir1");
    const std::vector<Text> rows = RowsOf(boxes, "Dir1");
    EXPECT_EQ(std::vector<Text>(rows.begin() + current + 1, rows.end()),
              (std::vector<Text>{u"link", u"real"}));
    DoubleClickRow(boxes, "Dir1", current + 1);
    EXPECT_EQ(RowsOf(boxes, "File1"), std::vector<Text>{u"x.gif"});
    EXPECT_FALSE(boxes.GoTo(FromQt(root.filePath(QStringLiteral("gone")))));
    EXPECT_FALSE(boxes.GoTo(FromQt(root.filePath(QStringLiteral("b.GIF")))));
}

} // namespace
} // namespace orvane
