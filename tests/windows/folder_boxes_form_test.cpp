#include "windows/folder_boxes.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"

#include <QComboBox>

namespace orvane::testing {
namespace {

TEST(FolderBoxesTest, FolderThatCannotBeReadLeavesEverythingAsItIs)
{
    FakeFileStore files;
    files.Folders = {u"/site", u"/site/pages", u"/site/pictures"};
    files.Contents = {{u"/site/index.html", ""}, {u"/site/README", ""}};
    FolderBoxes boxes(files, {"Drive1", "Dir1", "File1"}, u"*.*");
    ASSERT_TRUE(boxes.GoTo(u"/site"));
    files.FailOn(u"/site/pages", Fault::PermissionDenied);
    int picked = 0;
    QObject::connect(&boxes, &FolderBoxes::FolderPicked, [&picked] { ++picked; });
    DoubleClickRow(boxes, "Dir1", 2);
    EXPECT_EQ(boxes.Folder(), u"/site");
    EXPECT_EQ(RowsOf(boxes, "File1"), (Texts{u"index.html", u"README"}));
    DoubleClickRow(boxes, "Dir1", 3);
    EXPECT_EQ(boxes.Folder(), u"/site/pictures");
    EXPECT_EQ(picked, 1);
    QComboBox* drives = boxes.DriveBox();
    drives->addItem(QStringLiteral("/gone"));
    drives->setCurrentIndex(drives->count() - 1);
    emit drives->activated(drives->currentIndex());
    EXPECT_EQ(drives->currentText(), QStringLiteral("/"));
}

} // namespace
} // namespace orvane::testing
