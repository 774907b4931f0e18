#include "effects/applet/typewriter_text_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QComboBox>
#include <QPlainTextEdit>

namespace orvane {
namespace {

using namespace orvane::testing;

class TypewriterTextFormTest : public ::testing::Test
{
protected:
    TypewriterTextFormTest() { m_form.show(); }

    FakeDesk m_desk;
    TypewriterTextForm m_form{m_desk.Bench};
};

TEST_F(TypewriterTextFormTest, ATextFileTakesThePlaceOfTheText)
{
    EXPECT_FALSE(Find<QWidget>(m_form, "TextFile")->isVisible());
    Click(m_form, "ReadFromFile");
    EXPECT_FALSE(Find<QWidget>(m_form, "TypedText")->isVisible());
    Type(m_form, "TextFile", u"x");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    m_desk.Dialogs.AnswerOpenFile(u"/p/my words.txt");
    Click(m_form, "cmdBrowseForTextFile");
    EXPECT_EQ(WordsOf(m_form, "TextFile"), u"my words.txt");
    EXPECT_EQ(m_desk.Dialogs.Requests[0].Filter, u"All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
    EXPECT_EQ(m_desk.Core.Required.Sources[typewriterTextFileSlot], u"/p/my words.txt");
}

TEST_F(TypewriterTextFormTest, LeavingASizeOfZeroSaysSoAndEmptiesTheFontSize)
{
    Find<QPlainTextEdit>(m_form, "TypedText")->setPlainText(QStringLiteral("a"));
    Click(m_form, "cmdNext");
    m_form.activateWindow();
    auto* size = Find<QComboBox>(m_form, "FontSize");
    for (const char* text : {"0.9", "x", "1", ""}) {
        size->setEditText(QString::fromUtf8(text));
        size->setFocus();
        Find<QWidget>(m_form, "Bold")->setFocus();
        LetRun();
        const bool isRefused = text[0] == '0' || text[0] == 'x';
        EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
                  isRefused ? std::vector<Text>{u"This must be a positive value."}
                            : std::vector<Text>{});
        EXPECT_EQ(size->currentText(), QString::fromUtf8(isRefused ? "" : text));
    }
}

} // namespace
} // namespace orvane
