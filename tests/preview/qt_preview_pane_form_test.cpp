#include "preview/qt_preview_pane.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QCoreApplication>
#include <QFile>
#include <QWidget>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// A pane without the web view, as in a build without the browser engine.
class QtPreviewPaneFormTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (QFile::exists(QCoreApplication::applicationDirPath() + "/liborvane_web_view.so"))
            GTEST_SKIP() << "the web view is there";
        Pane.resize(480, 320);
        Pane.show();
    }
    Done Navigate() { return Pane.Navigate({.Path = path, .Bytes = "<body>"}); }

    const Text path = u"/program/page.html";
    FakeDesk Desk;
    QtPreviewPane Pane{Desk.Dialogs, Desk.Shell, Desk.Files};
};

TEST_F(QtPreviewPaneFormTest, PointsToTheAuthorsBrowserWhereTheWebViewIsMissing)
{
    Pane.Warm();
    EXPECT_FALSE(FaultIn(Navigate()));
    EXPECT_EQ(WordsOf(Pane, "lblPreviewNote"),
              u"The built-in preview could not be loaded: its file (orvane_web_view) or a library "
              u"that it needs is missing.\n\n"
              u"You can preview the special effect in your own Web browser instead.");
    EXPECT_FALSE(Find<QWidget>(Pane, "cmdTryAgain")->isVisible());
    EXPECT_EQ(Desk.Files.Writes, std::vector<Text>{path});
    EXPECT_FALSE(Desk.Files.Contents.contains(path));
    ExpectAccessible(Pane);
}

TEST_F(QtPreviewPaneFormTest, TellsAPageThatCannotBeWritten)
{
    Desk.Files.FailOn(path, Fault::DiskFull);
    EXPECT_EQ(Navigate(), Done(Fault::DiskFull));
    EXPECT_FALSE(Find<QWidget>(Pane, "lblPreviewNote")->isVisible());
}

} // namespace
} // namespace orvane::testing
