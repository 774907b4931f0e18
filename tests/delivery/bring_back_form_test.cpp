#include "delivery/bring_back_form.h"

#include "services/recent_files.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace orvane::testing {
namespace {

TEST(BringBackFormTest, ComparesTheBackupsOfAPageAndBringsBackTheChosenOne)
{
    FakeDesk desk;
    desk.Files.Contents = {{u"/site/a.html", "as it is now"},
                           {u"/site/Backup of a.html", "before"},
                           {u"/state/first-backups/2024-05-01/site/a.html", "in the beginning"}};
    desk.Files.Folders = {u"/state/first-backups", u"/state/first-backups/2024-05-01"};
    BringBackForm form(desk.Bench, {});
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    ExpectAccessible(form);
    EXPECT_EQ(form.focusWidget()->objectName(), QStringLiteral("cmdBrowseForPage"));
    Click(form, "cmdOK");
    EXPECT_EQ(desk.Dialogs.TakeSaid().size(), 1u) << "a page is wanted first";
    PutRecentFile(desk.Settings, recentPages, u"/site/gone.html");
    auto* recent = Find<QPushButton>(form, "cmdRecentPages")->menu();
    emit recent->aboutToShow();
    recent->actions().at(0)->trigger();
    EXPECT_EQ(WordsOf(form, "txtPage"), u"/site/gone.html") << "a page that was deleted, too";
    desk.Dialogs.AnswerOpenFile(u"/site/a.html");
    Click(form, "cmdBrowseForPage");
    auto* list = Find<QTreeWidget>(form, "lstBackups");
    ASSERT_EQ(list->topLevelItemCount(), 2);
    EXPECT_EQ(list->topLevelItem(0)->text(1), QStringLiteral("6 bytes"));
    EXPECT_EQ(list->topLevelItem(0)->text(2), QStringLiteral("6 bytes less"));
    EXPECT_EQ(list->topLevelItem(1)->text(2), QStringLiteral("4 bytes more"));
    ExpectAccessible(form);

    Press(*list, Qt::Key_Down);
    const Text question = u"Do you want to replace /site/a.html by its backup of 1970-01-01 ";
    const auto hour = list->topLevelItem(1)->text(0).mid(11).toStdU16String();
    for (const bool answer : {false, true}) {
        EXPECT_EQ(desk.Files.Contents[u"/site/a.html"], "as it is now");
        desk.Dialogs.ExpectAsk(question + hour + u"?", answer);
        Press(*list, Qt::Key_Return);
    }
    EXPECT_EQ(desk.Files.Contents[u"/site/a.html"], "in the beginning");
    EXPECT_EQ(desk.Files.Contents[u"/state/first-backups/2024-05-31 2/site/a.html"],
              "as it is now");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.BroughtBack(), u"/site/a.html");

    desk.Files.Contents.erase(u"/site/a.html");
    desk.Dialogs.AnswerOpenFile(u"/site/Backup of a.html");
    BringBackForm second(desk.Bench, {});
    second.show();
    Click(second, "cmdBrowseForPage");
    EXPECT_EQ(WordsOf(second, "txtPage"), u"/site/a.html");
    EXPECT_TRUE(WordsOf(second, "lblBackups").starts_with(u"This Web page is gone."));
    Click(second, "cmdOK");
    EXPECT_EQ(desk.Files.Contents[u"/site/a.html"], "before");
    EXPECT_TRUE(desk.Dialogs.Said.back().ends_with(u" again."));
}

} // namespace
} // namespace orvane::testing
