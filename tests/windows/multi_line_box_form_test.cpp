#include "windows/multi_line_box.h"

#include "tests/support/expect_text.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>

#include <chrono>

namespace orvane::testing {
namespace {

/// Everything that a text box likes to change.
const Text odd = u"a\u00A0b\u2028c\u2029d\r\n\te\uFEFF \r\nf";

TEST(MultiLineBoxTest, GivesBackEveryCharacterThatWentIn)
{
    MultiLineBox box;
    box.SetWords(odd);
    ExpectSameText(odd, box.Words());
    box.selectAll();
    box.copy();
    ExpectSameText(odd, FromQt(QApplication::clipboard()->text()));
    box.clear();
    box.paste();
    ExpectSameText(odd, box.Words());
}

TEST(MultiLineBoxTest, EndsEveryLineInCrLf)
{
    MultiLineBox box;
    box.SetWords(u"a\nb\rc");
    Press(box, Qt::Key_Return);
    ExpectSameText(u"\r\na\r\nb\r\nc", box.Words());
}

TEST(MultiLineBoxTest, AVeryLongWordIsShownWithoutAWait)
{
    MultiLineBox box;
    box.resize(600, 300);
    box.show();
    const auto start = std::chrono::steady_clock::now();
    QApplication::clipboard()->setText(QString(400'000, u'x'));
    box.paste();
    box.insertPlainText(QStringLiteral("y"));
    LetRun();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    box.SetWords(u"short words");
    EXPECT_EQ(box.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(MultiLineBoxTest, RefusesAPasteThatIsTooLargeAndKeepsWhatItHolds)
{
    MultiLineBox box;
    const QSignalSpy refused(&box, &MultiLineBox::TooLarge);
    box.SetWords(u"kept");
    QApplication::clipboard()->setText(QString(MultiLineBox::mostCharacters - 4, u'x'));
    box.paste();
    EXPECT_EQ(refused.size(), 1);
    EXPECT_EQ(box.Words(), u"kept");
}

} // namespace
} // namespace orvane::testing
