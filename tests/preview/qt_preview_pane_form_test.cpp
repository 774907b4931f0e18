#include "preview/qt_held_drawing.h"
#include "preview/qt_preview_pane.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(QtPreviewPaneFormTest, PointsToTheAuthorsBrowserWhereTheWebViewIsMissing)
{
    if (QFile::exists(QCoreApplication::applicationDirPath() + "/liborvane_web_view.so"))
        GTEST_SKIP() << "the web view is there";
    const Text path = u"/program/page.html";
    FakeDesk desk;
    QtPreviewPane pane(desk.Dialogs, desk.Shell, desk.Files);
    pane.resize(480, 320);
    pane.show();
    pane.Warm();
    EXPECT_FALSE(FaultIn(pane.Navigate({.Path = path, .Bytes = "<body>"})));
    EXPECT_EQ(WordsOf(pane, "lblPreviewNote"),
              u"The built-in preview could not be loaded: its file (orvane_web_view) or a library "
              u"that it needs is missing.\n\n"
              u"You can preview the special effect in your own Web browser instead.");
    EXPECT_FALSE(Find<QWidget>(pane, "cmdTryAgain")->isVisible());
    EXPECT_EQ(desk.Files.Writes, Texts{path});
    EXPECT_FALSE(desk.Files.Contents.contains(path));
    ExpectAccessible(pane);
    desk.Files.FailOn(path, Fault::DiskFull);
    EXPECT_EQ(pane.Navigate({.Path = path, .Bytes = "<body>"}), Done(Fault::DiskFull));
}

TEST(QtHeldDrawingFormTest, HoldsAWindowUntilTheEndOrForAMoment)
{
    QWidget window;
    QtHeldDrawing held;
    held.Begin(window);
    EXPECT_FALSE(window.updatesEnabled());
    held.End();
    EXPECT_TRUE(window.updatesEnabled());
    {
        QWidget closedMeanwhile;
        QtHeldDrawing ofAPaneThatIsGone;
        ofAPaneThatIsGone.Begin(window);
        held.Begin(closedMeanwhile);
    }
    held.End();
    EXPECT_FALSE(window.updatesEnabled());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.updatesEnabled(); }));
}

} // namespace
} // namespace orvane::testing
