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
        Desk.Files.Contents[u"/program/page.html"] = "<body>";
        Pane.resize(480, 320);
        Pane.show();
    }
    bool IsVisible(const char* name) { return Find<QWidget>(Pane, name)->isVisible(); }

    FakeDesk Desk;
    QtPreviewPane Pane{Desk.Dialogs, Desk.Shell, Desk.Files};
};

TEST_F(QtPreviewPaneFormTest, OffersTheAuthorsBrowserWhereTheWebViewIsMissing)
{
    Pane.Warm();
    Pane.Navigate(u"/program/page.html");
    EXPECT_EQ(WordsOf(Pane, "lblPreviewNote"),
              u"The built-in preview could not be loaded: its file (orvane_web_view) or a library "
              u"that it needs is missing.\n\n"
              u"You can preview the special effect in your own Web browser instead.");
    EXPECT_FALSE(IsVisible("cmdTryAgain"));
    EXPECT_FALSE(Desk.Files.Contents.contains(u"/program/page.html"));
    ExpectAccessible(Pane);

    Click(Pane, "cmdPreviewInBrowser");
    EXPECT_EQ(Desk.Shell.Opened, std::vector<Text>{u"/program/page.html"});
    EXPECT_EQ(Desk.Files.Contents[u"/program/page.html"], "<body>");

    int previews = 0;
    Pane.PreviewInBrowser = [&] { ++previews; };
    Click(Pane, "cmdPreviewInBrowser");
    EXPECT_EQ(previews, 1);
    EXPECT_EQ(Desk.Shell.Opened.size(), 1u);
}

TEST_F(QtPreviewPaneFormTest, SaysThatThePageCannotBeReadOrWritten)
{
    Pane.Navigate(u"/program/page.html");
    Desk.Files.FailOn(u"/program/page.html", Fault::DiskFull);
    for (int attempt = 0; attempt < 2; ++attempt)
        Click(Pane, "cmdPreviewInBrowser");
    EXPECT_EQ(WordsOf(Pane, "lblPreviewNote"),
              u"The preview page could not be written: Disk full.");
    EXPECT_TRUE(Desk.Shell.Opened.empty());

    Pane.Navigate(u"/program/page.html");
    EXPECT_EQ(WordsOf(Pane, "lblPreviewNote"), u"The preview page could not be read: Disk full.");
}

} // namespace
} // namespace orvane::testing
