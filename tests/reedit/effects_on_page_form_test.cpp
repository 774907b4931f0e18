#include "reedit/effects_on_page_form.h"

#include "core/effect_markers.h"
#include "services/recent_files.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace orvane::testing {
namespace {

std::string Block(TextView name, const std::string& code)
{
    const EffectMarkers markers = MarkersOf(name);
    return ToBytes(markers.Begin) + "\r\n" + code + "\r\n" + ToBytes(markers.End) + "\r\n";
}

const Text path = u"/site/a.html";
const std::string tail = "<p>mine</p>\r\n</body></html>";
const std::string head = "<html><head>\r\n<title>x</title></head>\r\n<body>\r\n";
const std::string slides = Block(u"Slideshow", "<img src=\"a.gif\"><img src=\"b.gif\">");
const std::string button = Block(u"Dynamic Button", "<img src=\"b.gif\">");
const std::string half = ToBytes(MarkersOf(u"Sound").Begin) + "\r\n";
const std::string page = head + slides + button + tail + half;

class EffectsOnPageFormTest : public ::testing::Test
{
protected:
    /// Shows the window with a page of these bytes.
    void Open(const std::string& bytes)
    {
        m_desk.Files.Contents[path] = bytes;
        m_page.GoTo(path);
        m_form.show();
        m_form.resize(1000, 600);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_form));
        m_list = Find<ActingList>(m_form, "lstPageEffects");
    }
    std::string& Bytes() { return m_desk.Files.Contents[path]; }
    const LivePage& Shown() const { return m_desk.Pane.Live.back(); }
    bool IsEnabled(const char* name) { return Find<QWidget>(m_form, name)->isEnabled(); }
    /// Moves the choice by a key and tells the line that is shown then.
    Text Choose(Qt::Key key)
    {
        Press(*m_list, key);
        return WordsOf(m_form, "lblEffect");
    }
    /// Prepares the answer to the question on the effect with that title in line 4.
    void AnswerTakeOut(TextView title, TextView file, bool answer)
    {
        m_desk.Dialogs.ExpectAsk(
            Join({u"Do you want to take \"", title, u"\" out of your Web page?\r\n\r\n",
                  u"What stands in the body, line 4 goes.  No file is deleted.\r\n\r\n",
                  u"Nothing else in the page needs these files: ", file}),
            answer);
    }

    FakeDesk m_desk;
    PageEffects m_page{m_desk.Files, m_desk.Dialogs, BackupsPlaceIn(u"/state", u"2024-05-31")};
    Texts m_scriptFolders;
    EffectsOnPageForm m_form{m_desk.Bench, m_page, nullptr,
                             [this](TextView folder) { m_scriptFolders.emplace_back(folder); }};
    ActingList* m_list = nullptr;
};

TEST_F(EffectsOnPageFormTest, ListsEachEffectAndScrollsThePageToTheChosenOne)
{
    Open(page);
    ExpectAccessible(m_form);
    EXPECT_EQ(m_form.focusWidget(), m_list);
    EXPECT_EQ(RowsOf(m_form, "lstPageEffects"),
              (Texts{u"Slideshow\nin the body, line 4 \u00B7 whole \u00B7 a.gif, b.gif",
                     u"Dynamic Button\nin the body, line 7 \u00B7 whole \u00B7 b.gif",
                     u"Sound Effect\nin the body, line 11 \u00B7 only half of it is there"}));
    EXPECT_EQ(m_list->item(1)->data(Qt::AccessibleTextRole).toString().toStdU16String(),
              u"Dynamic Button, in the body, line 7, whole, with the files b.gif.");
    EXPECT_FALSE(m_list->item(0)->icon().pixmap(32, 32).isNull());
    EXPECT_TRUE(Shown().Bytes->starts_with(head + "<!--" + ToUtf8(Shown().Mark) + "-->" + slides));
    EXPECT_EQ(Shown().Folder, u"/site/");
    EXPECT_EQ(Choose(Qt::Key_Down), u"");
    EXPECT_TRUE(IsEnabled("cmdTakeOut"));
    EXPECT_NE(Shown().Bytes->find("-->" + button), std::string::npos);
    EXPECT_TRUE(Choose(Qt::Key_Down).starts_with(u"One of the two comments"));
    EXPECT_FALSE(IsEnabled("cmdTakeOut"));
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), page);
    EXPECT_TRUE(m_desk.Dialogs.Asked.empty());
}

TEST_F(EffectsOnPageFormTest, OpensARecentPageAndTouchesNoneOfItsNestedEffects)
{
    Open("");
    const Text nested = u"/site/nested.html";
    const std::string bytes = head + Block(u"Slideshow", button) + tail;
    m_desk.Files.Contents[nested] = bytes;
    PutRecentFile(m_desk.Settings, recentPages, nested);
    QMenu* menu = Find<QPushButton>(m_form, "cmdRecentPages")->menu();
    emit menu->aboutToShow();
    menu->actions().at(0)->trigger();
    EXPECT_EQ(WordsOf(m_form, "txtPage"), nested);
    const TextView state = u"\u00B7 tangled with another effect \u00B7 b.gif";
    ASSERT_EQ(m_list->count(), 2);
    for (const Text& row : RowsOf(m_form, "lstPageEffects"))
        EXPECT_TRUE(row.ends_with(state)) << ToUtf8(row);
    EXPECT_TRUE(Choose(Qt::Key_Down).find(u"stand inside each other") != Text::npos);
    EXPECT_FALSE(IsEnabled("cmdChange"));
    Press(*m_list, Qt::Key_Return);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_EQ(m_desk.Files.Contents[nested], bytes);
}

TEST_F(EffectsOnPageFormTest, TakesOutAfterOneQuestionAndBringsBackStepByStep)
{
    Open(page);
    AnswerTakeOut(u"Slideshow", u"a.gif", false);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), page);
    EXPECT_FALSE(IsEnabled("cmdBringBack"));
    AnswerTakeOut(u"Slideshow", u"a.gif", true);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), head + button + tail + half);
    EXPECT_EQ(m_desk.Files.Contents[u"/site/Backup of a.html"], page);
    EXPECT_EQ(Shown().Bytes->find("a.gif"), std::string::npos);
    EXPECT_EQ(m_form.focusWidget(), m_list);
    AnswerTakeOut(u"Dynamic Button", u"b.gif", true);
    Click(m_form, "cmdTakeOut");
    EXPECT_EQ(Bytes(), head + tail + half);
    QTest::keyClick(m_list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Bytes(), head + button + tail + half);
    QTest::keyClick(m_list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Bytes(), page);
    EXPECT_EQ(m_list->count(), 3);
    EXPECT_FALSE(IsEnabled("cmdBringBack"));
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());
}

TEST_F(EffectsOnPageFormTest, LeavesWhatAnotherProgramWroteMeanwhile)
{
    Open(page);
    AnswerTakeOut(u"Slideshow", u"a.gif", true);
    Press(*m_list, Qt::Key_Delete);
    // As long as the page, so that only its bytes tell.
    const std::string theirs = ReplaceAll(Bytes(), "mine", "hers");
    Bytes() = theirs;
    QTest::keyClick(m_list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Bytes(), theirs);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_FALSE(IsEnabled("cmdBringBack")) << "it would undo what they wrote";
    EXPECT_NE(Shown().Bytes->find("hers"), std::string::npos);

    Bytes() = "no effects";
    QEvent activation(QEvent::ActivationChange);
    QApplication::sendEvent(&m_form, &activation);
    EXPECT_EQ(m_list->count(), 0);
    EXPECT_EQ(WordsOf(m_form, "lblEffect"),
              u"No special effect of Orvane stands in this Web page.");
    m_desk.Files.Contents.clear();
    m_desk.Files.Folders = {u"/site"};
    m_desk.Dialogs.AnswerOpenFile(u"/site/gone.html");
    Click(m_form, "cmdBrowseForPage");
    EXPECT_EQ(WordsOf(m_form, "lblEffect"), u"File not found");
    EXPECT_TRUE(m_desk.Files.Contents.empty());
    m_desk.Files.Contents[u"/site/gone.html"] = "";
    QApplication::sendEvent(&m_form, &activation);
    EXPECT_EQ(WordsOf(m_form, "lblEffect"),
              u"No special effect of Orvane stands in this Web page.");
}

TEST_F(EffectsOnPageFormTest, PutsThePageScriptInAndTakesItOut)
{
    const std::string ticker = Block(u"Status Bar Scroller", "<script>go()</script>");
    const std::string bare = "<html><head></head><body>\n" + ticker + "</body>";
    Open(bare);
    auto* script = Find<QCheckBox>(m_form, "chkRunsToday");
    script->click();
    EXPECT_NE(Bytes().find("orvane.js"), std::string::npos);
    EXPECT_EQ(m_scriptFolders, Texts{u"/site/"});
    EXPECT_TRUE(RowsOf(m_form, "lstPageEffects").at(0).ends_with(u"\u00B7 orvane.js"));
    script->click();
    EXPECT_EQ(Bytes(), bare);
    script->click();
    m_desk.Dialogs.ExpectAsk(
        u"Do you want to take \"Status Bar Text Ticker\" out of your Web page?\r\n\r\n"
        u"What stands in the body, line 4 goes, and so do the lines of the page script.  No file "
        u"is deleted.\r\n\r\nNothing else in the page needs these files: orvane.js",
        true);
    Press(*m_list, Qt::Key_Delete);
    EXPECT_EQ(Bytes(), "<html><head></head><body>\n</body>");
    EXPECT_FALSE(script->isVisible());

    Open(ticker);
    script->click();
    EXPECT_EQ(Bytes(), ticker);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u) << "there is no HEAD tag";
    EXPECT_FALSE(script->isChecked());
}

} // namespace
} // namespace orvane::testing
