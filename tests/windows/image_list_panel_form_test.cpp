#include "windows/image_list_panel.h"

#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace orvane::testing {
namespace {

/// A window with the panel over a real folder, which the disk double lists.
class ImageListPanelTest : public ::testing::Test
{
protected:
    ImageListPanelTest()
    {
        const Text root = FromQt(m_folder.path());
        for (Text path = root; path.size() > 1;
             path = Left(FolderOf(path), FolderOf(path).size() - 1))
            m_desk.Files.Folders.insert(path);
        AddFolder(u"blank name");
        AddFile(u"wide.gif", GifBytes(120, 40));
        AddFile(u"Tall.GIF", GifBytes(20, 300));
        AddFile(u"page.html", "<html>");
        AddFile(u"blank name/x.jpg", GifBytes(5, 6));
        m_desk.Core.DefaultPath = root;
    }

    Text Path(TextView name) const { return Join({FromQt(m_folder.path()), u"/", name}); }

    void AddFolder(TextView name)
    {
        QDir().mkpath(ToQt(Path(name)));
        m_desk.Files.Folders.insert(Path(name));
    }

    void AddFile(TextView name, const std::string& bytes)
    {
        WriteFile(ToUtf8(Path(name)), bytes);
        m_desk.Files.Contents[Path(name)] = bytes;
    }

    RowListPanel& Open(const ImageListVariation& variation)
    {
        m_panel = new ImageListPanel(m_desk.Bench, m_files, variation);
        auto* rows = new QVBoxLayout(&m_window);
        rows->addWidget(m_panel);
        for (QLineEdit* field : {&m_width, &m_height})
            rows->addWidget(field);
        auto* done = new QPushButton(QStringLiteral("Done"));
        done->setObjectName(QStringLiteral("cmdDone"));
        done->setDefault(true);
        QObject::connect(done, &QPushButton::clicked, &m_window, &QDialog::accept);
        rows->addWidget(done);
        m_panel->SetSizeFields(&m_width, &m_height);
        m_window.resize(900, 500);
        m_window.show();
        m_window.activateWindow();
        LetRun();
        return *m_panel->List();
    }

    void Choose(const char* name, TextView words)
    {
        ClickRow(m_window, name, RowWith(m_window, name, words));
    }

    QListWidget& List(const char* name) { return *Find<QListWidget>(m_window, name); }

    QTemporaryDir m_folder;
    FakeDesk m_desk;
    RequiredFiles m_files;
    QDialog m_window;
    QLineEdit m_width;
    QLineEdit m_height;
    ImageListPanel* m_panel = nullptr;
};

TEST_F(ImageListPanelTest, OpensInTheFolderUsedLast)
{
    Open(SlideshowImageList());
    EXPECT_EQ(RowsOf(m_window, "File1"), (Texts{u"Tall.GIF", u"wide.gif"}));
    EXPECT_EQ(SelectedRowOf(m_window, "Dir1"),
              RowWith(m_window, "Dir1", GetFileName(FromQt(m_folder.path()))));
    EXPECT_TRUE(m_desk.Settings.Writes.empty());
    m_width.setObjectName(QStringLiteral("Text20"));
    m_height.setObjectName(QStringLiteral("Text21"));
    m_width.setAccessibleName(QStringLiteral("Width"));
    m_height.setAccessibleName(QStringLiteral("Height"));
    ExpectAccessible(m_window);
}

// Stays as it is: a name that is refused enables the animator's buttons all the same.
TEST_F(ImageListPanelTest, AddButtonAsksForAFileAndThenGrowsTheSizeFields)
{
    const std::array<const char*, 3> buttons = {"cmdDelete", "cmdMoveDown", "cmdMoveUp"};
    AddFile(u"my pic.gif", GifBytes(900, 900));
    RowListPanel& panel = Open(AnimatorImageList());
    List("File1").setFocus();
    EXPECT_EQ(List("File1").currentRow(), -1) << "nothing is selected, nor looks so";
    Click(m_window, "cmdAddToImageList");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{u"Please select an image."});
    for (const char* name : buttons)
        EXPECT_FALSE(Find<QPushButton>(m_window, name)->isEnabled()) << name;
    Choose("File1", u"my pic.gif");
    Click(m_window, "cmdAddToImageList");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_TRUE(panel.Rows().empty());
    for (const char* name : buttons)
        EXPECT_TRUE(Find<QPushButton>(m_window, name)->isEnabled()) << name;

    List("File1").clearSelection();
    Type(m_window, "File1", u"W");
    EXPECT_EQ(m_width.text(), QString());
    Press(List("File1"), Qt::Key_Enter);
    EXPECT_TRUE(m_window.isVisible());
    DoubleClickBeside(m_window, "File1");
    EXPECT_EQ(panel.Rows(), RowTextsOf<ImageRow>({{.FileName = u"wide.gif"}}));
    EXPECT_EQ(m_files.RequiredFileSources[0], Path(u"wide.gif"));
    EXPECT_EQ(m_width.text() + u'x' + m_height.text(), QStringLiteral("120x40"));

    DoubleClickRow(m_window, "File1", RowWith(m_window, "File1", u"Tall.GIF"));
    EXPECT_EQ(RowsOf(m_window, "List1"), (Texts{u"wide.gif", u"Tall.GIF"}));
    EXPECT_EQ(m_width.text() + u'x' + m_height.text(), QStringLiteral("120x300"));
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());
}

TEST_F(ImageListPanelTest, ListsSelectScrollAndMoveAsOne)
{
    RowListPanel& panel = Open(AnimatorImageList());
    RowTexts rows;
    for (int i = 0; i < 60; ++i) {
        const Text number = FromUtf8(std::to_string(i));
        rows.push_back({number, u"p" + number, u"t" + number, u"u" + number, u"s" + number});
    }
    int selections = 0;
    QObject::connect(&panel, &RowListPanel::RowSelected, [&] { ++selections; });
    panel.SetRows(rows);
    EXPECT_EQ(selections, 0);
    ClickRow(m_window, "List5", 50);
    EXPECT_EQ(selections, 1);
    EXPECT_EQ(panel.Selected(), 50u);
    List("List4").verticalScrollBar()->setValue(7);
    for (const char* name : {"List1", "List3", "List5", "List6"}) {
        EXPECT_EQ(SelectedRowOf(m_window, name), 50) << name;
        EXPECT_EQ(List(name).verticalScrollBar()->value(), 7) << name;
    }
    Press(List("List3"), Qt::Key_Down);
    Click(m_window, "cmdMoveUp");
    EXPECT_EQ(panel.Rows()[50], rows[51]);
    EXPECT_EQ(RowsOf(m_window, "List4")[50], u"t51");
    EXPECT_EQ(SelectedRowOf(m_window, "List6"), 50);
    Press(List("List4"), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(panel.Rows()[49], rows[51]);
    Press(List("List1"), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(SelectedRowOf(m_window, "List6"), 50);
    Click(m_window, "cmdDelete");
    Press(List("List1"), Qt::Key_Delete);
    EXPECT_EQ(RowsOf(m_window, "List6")[50], u"s52");
    EXPECT_EQ(SelectedRowOf(m_window, "List1"), 50);
    Press(List("List1"), Qt::Key_Home);
    for (const std::size_t left : {59u, 60u, 60u}) {
        Press(*Find<QWidget>(m_window, "cmdDelete"), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(panel.Rows().size(), left);
    }
    EXPECT_EQ(panel.Rows()[50], rows[51]);
    EXPECT_EQ(panel.Selected(), 50u);
    Click(m_window, "cmdDelete");
    panel.Select(3);
    panel.ChangeSelectedRow({u"3", u"-1", {}, {}, {}});
    EXPECT_EQ(RowsOf(m_window, "List3")[3], u"-1");
    EXPECT_EQ(SelectedRowOf(m_window, "List4"), 3);
    panel.SetRows({});
    Press(List("List1"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(panel.Rows().empty()) << "the removed row belongs to other rows";
}

TEST_F(ImageListPanelTest, SeveralFilesAreAddedInTheirOrderAndRefusedOnce)
{
    for (const TextView name : {u"a b.gif", u"c d.gif"})
        AddFile(name, GifBytes(900, 900));
    RowListPanel& panel = Open(SlideshowImageList());
    List("File1").selectAll();
    Click(m_window, "cmdAddImageToList");
    EXPECT_EQ(RowsOf(m_window, "List1"), (Texts{u"Tall.GIF", u"wide.gif"}));
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              Texts{u"This special effect does not allow image filenames containing space "
                    u"characters.\r\nPlease rename the image or select another image.\r\n"
                    u"a b.gif\r\nc d.gif"});
    EXPECT_EQ(m_width.text() + u'x' + m_height.text(), QStringLiteral("120x300"));
    EXPECT_EQ(panel.Selected(), 1u) << "the last one that was added";

    ClickRow(m_window, "List1", 0);
    QWidget& place = *List("List1").viewport();
    for (const std::vector<Text>& refused :
         {{Path(u"page.html"), u"http://x/wide.gif"}, {Path(u"gone.gif")}, std::vector<Text>()})
        EXPECT_FALSE(DropFiles(place, refused));
    AddFolder(u"empty");
    EXPECT_TRUE(DropFiles(place, {Path(u"page.html"), Path(u"blank name"), Path(u"empty"),
                                  Path(u"wide.gif"), u"http://x/y.gif"}));
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              Texts{u"These files do not fit here and were left out:\r\npage.html\r\ny.gif\r\n"
                    u"empty"});
    EXPECT_EQ(RowsOf(m_window, "List1"), (Texts{u"x.jpg", u"wide.gif", u"Tall.GIF", u"wide.gif"}));
    EXPECT_EQ(panel.Selected(), 2u);
    ClickRow(m_window, "List1", 3);
    DropFiles(place, {Path(u"blank name/x.jpg"), Path(u"Tall.GIF")});
    EXPECT_EQ(RowsOf(m_window, "List1")[5], u"Tall.GIF") << "both behind the last row";
    EXPECT_EQ(m_files.RequiredFileSources[2], Path(u"blank name/x.jpg"));
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());
}

TEST_F(ImageListPanelTest, DraggedRowTakesAllColumnsAlong)
{
    RowListPanel& panel = Open(AnimatorImageList());
    panel.SetRows({{u"a", u"1", {}, {}, {}}, {u"b", u"2", {}, {}, {}}, {u"c", u"3", {}, {}, {}}});
    EXPECT_TRUE(DragRow(m_window, "List4", 0, 2));
    EXPECT_EQ(RowsOf(m_window, "List3"), (Texts{u"2", u"3", u"1"}));
    EXPECT_EQ(SelectedRowOf(m_window, "List1"), 2);
    EXPECT_TRUE(DragRow(m_window, "List1", 2, 1));
    EXPECT_EQ(RowsOf(m_window, "List1"), (Texts{u"b", u"a", u"c"}));
}

TEST_F(ImageListPanelTest, RowsTellOfDoubleClicksAndMenus)
{
    RowListPanel& panel = Open(AnimatorImageList());
    panel.SetRows(RowTextsOf<ImageRow>({{.FileName = u"a"}, {.FileName = u"b"}}));
    int doubleClicks = 0;
    int menus = 0;
    QObject::connect(&panel, &RowListPanel::EditWanted, [&] { ++doubleClicks; });
    QObject::connect(&panel, &RowListPanel::MenuRequested, [&](QPoint) {
        ++menus;
        EXPECT_EQ(panel.Selected(), 1u);
    });
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&List("List1"), &key);
    EXPECT_EQ(menus, 0);
    RightPressRow(m_window, "List4", 1);
    EXPECT_EQ(menus, 1);
    DoubleClickRow(m_window, "List6", 0);
    EXPECT_EQ(doubleClicks, 1);
    EXPECT_EQ(panel.Selected(), 0u);
}

TEST_F(ImageListPanelTest, PreviewShowsTheSelectedPictureAndKeepsItOverABrokenOne)
{
    AddFile(u"bad.jpg", "Dear reader,\r\n");
    AddFile(u"a b.gif", GifBytes(30, 30));
    Open(SlideshowImageList()).SetRows(RowTextsOf<ImageRow>({{.FileName = u"unknown.gif"}}));
    DoubleClickRow(m_window, "File1", RowWith(m_window, "File1", u"wide.gif"));
    const auto* preview = Find<QLabel>(m_window, "lblPreviewImage");
    const qint64 old = preview->pixmap().cacheKey();
    Choose("File1", u"bad.jpg");
    EXPECT_EQ(preview->pixmap().cacheKey(), old);
    Click(m_window, "cmdAddImageToList");
    EXPECT_EQ(RowsOf(m_window, "List1"), (Texts{u"unknown.gif", u"wide.gif", u"bad.jpg"}));
    EXPECT_EQ(m_width.text() + u'x' + m_height.text(), QStringLiteral("120x40"));
    ClickRow(m_window, "List1", 1);
    EXPECT_EQ(preview->pixmap().size(), QSize(120, 40));
    DropFiles(*List("List1").viewport(), {Path(u"a b.gif")});
    EXPECT_EQ(preview->pixmap().size(), QSize(120, 40)) << "not the refused one";
    ClickRow(m_window, "List1", 0);
    EXPECT_TRUE(preview->pixmap().isNull());
    Choose("File1", u"a b.gif");
    EXPECT_EQ(preview->pixmap().size(), QSize(30, 30));
    Click(m_window, "cmdAddImageToList");
    EXPECT_TRUE(preview->pixmap().isNull()) << "as the selected one";
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 2u);
    EXPECT_TRUE(m_window.isVisible());
    Press(List("List1"), Qt::Key_Return);
    EXPECT_FALSE(m_window.isVisible()) << "nothing opens a row here";
}

} // namespace
} // namespace orvane::testing
