#include "program/qt_dialogs.h"

#include "tests/support/doubles.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

const QString manyLines = QStringLiteral("A line of <b>words</b>\r\n").repeated(300);
const Text manyWords(manyLines.toStdU16String());

TEST(QtDialogsTest, GivesTheAnswerOfEachButtonAndOfEscape)
{
    FakeSettings settings;
    QtDialogs dialogs(settings);
    const auto press = [](const char* button) {
        WhenInFront<QDialog>([button](QDialog& box) {
            EXPECT_EQ(WordsOf(box, "lblWords"), u"Sure & <safe>?\nYes?");
            EXPECT_TRUE(Find<QPushButton>(box, "cmdYes")->isDefault());
            button == nullptr ? Press(box, Qt::Key_Escape) : Click(box, button);
        });
    };
    const Text words = u"Sure & <safe>?\r\nYes?";
    for (const auto& [button, answer] : std::initializer_list<std::pair<const char*, bool>>{
             {"cmdYes", true}, {"cmdNo", false}, {nullptr, false}}) {
        press(button);
        EXPECT_EQ(dialogs.Ask(words, u"Title"), answer);
    }
    for (const auto& [button, answer] :
         std::initializer_list<std::pair<const char*, std::optional<bool>>>{
             {"cmdYes", true}, {"cmdNo", false}, {"cmdCancel", {}}, {nullptr, {}}}) {
        press(button);
        EXPECT_EQ(dialogs.AskOrCancel(words, u"Title"), answer);
    }
}

TEST(QtDialogsTest, KeepsWhatTheAuthorAnswersWithOnTheScreenHoweverManyTheWords)
{
    FakeSettings settings;
    QtDialogs dialogs(settings);
    WhenInFront<QDialog>([](QDialog& box) {
        const QRect room = box.screen()->availableGeometry();
        EXPECT_LT(box.height(), room.height());
        auto* stop = Find<QCheckBox>(box, "chkStop");
        for (const QWidget* control :
             {static_cast<QWidget*>(stop), static_cast<QWidget*>(Find<QPushButton>(box, "cmdOK"))})
            EXPECT_TRUE(box.rect().contains(control->geometry())) << control->isVisible();
        stop->click();
        Find<QLineEdit>(box, "txtEntry")->setText("typed");
        ExpectAccessible(box);
        Click(box, "cmdOK");
    });
    const PageBoxReply reply = dialogs.Answer(
        {.Shape = PageBox::Kind::Prompt, .Words = manyWords, .Proposed = u"a", .OffersStop = true});
    EXPECT_TRUE(reply.Accepted && reply.Stop);
    EXPECT_EQ(reply.Entered, u"typed");
}

TEST(QtDialogsTest, NoBoxBelongsToAWindowThatClosesByItself)
{
    FakeSettings settings;
    QtDialogs dialogs(settings);
    QWidget wizard;
    wizard.show();
    auto* popup = new QWidget(&wizard, Qt::Window);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->show();
    popup->activateWindow();
    LetRun();
    ASSERT_EQ(QApplication::activeWindow(), popup);
    WhenInFront<QDialog>([&](QDialog& box) {
        EXPECT_EQ(box.parentWidget(), &wizard);
        box.accept();
    });
    dialogs.Say(u"Hello", Tone::Exclamation);
    popup->hide();
    LetRun();
    EXPECT_EQ(QApplication::activeWindow(), &wizard) << "the keys go to the window below";
}

TEST(QtDialogsTest, TheWaitPointerDoesNotStandOverAQuestion)
{
    FakeSettings settings;
    QtDialogs dialogs(settings);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::setOverrideCursor(Qt::BusyCursor);
    WhenInFront<QDialog>([](QDialog& box) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        box.accept();
    });
    dialogs.Say(u"Hello", Tone::Plain);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
    QApplication::restoreOverrideCursor();
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

TEST(QtDialogsTest, FileDialogsHaveTheAskedKindsAndRememberTheirFolder)
{
    EXPECT_EQ(QtNameFilters(u"All Files (*.*)|*.*|Pages (*.htm, *.html)|*.html;*.htm|rest"),
              (QStringList{"All Files (*)", "Pages (*.html *.htm)"}));

    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    FakeSettings settings;
    QtDialogs dialogs(settings);
    const QTemporaryDir folder;
    const Text path = folder.path().toStdU16String();
    const FileRequest request{.Filter = u"All|*.*|Pages|*.html",
                              .FilterIndex = 2,
                              .InitDir = path,
                              .Purpose = FolderPurpose::Images};
    WhenInFront<QFileDialog>([](QFileDialog& dialog) {
        dialog.selectFile("page");
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(dialogs.SaveFile(request), path + u"/page.html");
    WhenInFront<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path(), folder.path());
        dialog.reject();
    });
    EXPECT_EQ(dialogs.OpenFile({}), std::nullopt);
    for (const char* name : {"/p10.gif", "/p9.gif", "/p8.gif"})
        WriteFile(folder.path().toStdString() + name, "");
    WhenInFront<QFileDialog>([](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("\"p10.gif\" \"p9.gif\"");
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(dialogs.OpenFiles({.Purpose = FolderPurpose::Images}),
              (Texts{path + u"/p9.gif", path + u"/p10.gif"}));
    // In the next run the folder is that of images alone.
    QtDialogs later(settings);
    for (const auto& [purpose, isSame] :
         {std::pair(FolderPurpose::Images, true), std::pair(FolderPurpose::Pages, false)}) {
        WhenInFront<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.directory().path() == folder.path(), isSame);
            dialog.reject();
        });
        EXPECT_EQ(later.OpenFile({.Purpose = purpose}), std::nullopt);
    }
}

TEST(QtDialogsTest, LongWorkShowsItselfAndKeepsTheAuthorFromAllButEndingIt)
{
    FakeSettings settings;
    QtDialogs dialogs(settings);
    QPushButton below("again");
    int pressed = 0;
    QObject::connect(&below, &QPushButton::clicked, [&] { ++pressed; });
    below.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&below));
    const auto work = dialogs.FollowWork(u"Copying files to /a & b");
    EXPECT_TRUE(work->GoOn(0, 100));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "short work is not shown";
    QTest::qSleep(550);
    EXPECT_TRUE(work->GoOn(40, 100));
    QWidget* box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    ExpectAccessible(*box);
    EXPECT_EQ(Find<QProgressBar>(*box, "ProgressBar")->value(), 400);
    QTest::mouseClick(below.windowHandle(), Qt::LeftButton, {}, below.rect().center());
    Press(*box, Qt::Key_Escape);
    EXPECT_FALSE(work->GoOn(41, 100));
    EXPECT_EQ(pressed, 0);
}

TEST(QtDialogsTest, ColoursArePackedWithBlueFirstAndACancelledFontStays)
{
    FakeSettings settings;
    QtDialogs dialogs(settings);
    WhenInFront<QColorDialog>([](QColorDialog& dialog) {
        dialog.setCurrentColor(QColor(1, 2, 3));
        dialog.accept();
    });
    EXPECT_EQ(dialogs.PickColor(), 0x030201);
    const FontChoice start{.Name = u"Any", .Size = u"7.5", .Bold = true};
    WhenInFront<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(dialogs.PickFont(start), start);
    WhenInFront<QFontDialog>([](QFontDialog& dialog) {
        dialog.setCurrentFont(QFont("Sans", 12, QFont::Normal, true));
        dialog.accept();
    });
    const FontChoice chosen = dialogs.PickFont(start);
    EXPECT_EQ(chosen.Size, u"12");
    EXPECT_TRUE(chosen.Italic && !chosen.Bold);
}

} // namespace
} // namespace orvane::testing
