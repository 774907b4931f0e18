#include "effects/applet/typewriter_text_form.h"

#include "tests/support/form_test.h"

#include <QComboBox>
#include <QPlainTextEdit>

namespace orvane::testing {
namespace {

using TypewriterTextFormTest = FormTest<TypewriterTextForm>;

TEST_F(TypewriterTextFormTest, ATextFileTakesThePlaceOfTheText)
{
    Click(m_form, "ReadFromFile");
    Type(m_form, "TextFile", u"x");
    EXPECT_EQ(Said().size(), 1u);
    m_desk.Dialogs.AnswerOpenFile(u"/p/my words.txt");
    Click(m_form, "cmdBrowseForTextFile");
    EXPECT_EQ(WordsOf(m_form, "TextFile"), u"my words.txt");
    EXPECT_EQ(m_desk.Dialogs.Requests[0].Filter, u"All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
    EXPECT_EQ(m_form.Parameters().Required.RequiredFileSources[typewriterTextFileSlot],
              u"/p/my words.txt");
}

TEST_F(TypewriterTextFormTest, LeavingASizeOfZeroSaysSoEachTimeAndEmptiesTheFontSize)
{
    m_form.SetParameters({.TypedText = u"a", .AppletHeight = u"0"});
    m_form.activateWindow();
    Click(m_form, "cmdNext");
    auto* size = Find<QComboBox>(m_form, "FontSize");
    for (const char* text : {"0.9", "x", "1", ""}) {
        size->setEditText(QString::fromUtf8(text));
        size->setFocus();
        Find<QWidget>(m_form, "Bold")->setFocus();
        LetRun();
        const bool isRefused = text[0] == '0' || text[0] == 'x';
        EXPECT_EQ(Said(), isRefused ? Texts{u"This must be a positive value."} : Texts{});
        EXPECT_EQ(size->currentText(), QString::fromUtf8(isRefused ? "" : text));
    }
    Click(m_form, "cmdNext");
    for (int time = 0; time < 2; ++time) {
        Find<QWidget>(m_form, "AppletHeight")->setFocus();
        Find<QWidget>(m_form, "LinkURL")->setFocus();
        LetRun();
        EXPECT_EQ(Said().size(), 1u) << "unchanged";
    }
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said().size(), 1u) << "the width";
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("AppletWidth"));
}

} // namespace
} // namespace orvane::testing
