#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/field_controls.h"
#include "windows/file_rows.h"
#include "windows/hint_lines.h"
#include "windows/number_box.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/row_list_panel.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

namespace orvane::testing {
namespace {

/// A window of some rows.
class VocabularyTest : public ::testing::Test
{
protected:
    void Show()
    {
        SetReadingOrder(m_window);
        m_window.show();
        m_window.activateWindow();
        LetRun();
    }

    Text TextIn(const char* name) { return WordsOf(m_window, name); }

    FakeDesk m_desk;
    QDialog m_window;
    PageBuilder m_page{&m_window, &m_desk.Bench};
};

TEST_F(VocabularyTest, APickedSoundHasItsSourceAndDeleteAloneTakesItAway)
{
    AddSound(m_page, "txtSound", "SoundSource", {u"Sound:", {}, "cmdBrowse", u"Browse..."});
    Show();
    m_desk.Dialogs.AnswerOpenFile(u"/my  sounds/a b.mp3");
    Click(m_window, "cmdBrowse");
    EXPECT_EQ(TextIn("SoundSource"), u"/my  sounds/a b.mp3");
    Type(m_window, "txtSound", u"x");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_EQ(TextIn("txtSound"), u"a%20b.mp3");
    Press(*m_window.focusWidget(), Qt::Key_Delete);
    EXPECT_EQ(TextIn("txtSound"), u"");
}

TEST_F(VocabularyTest, FontDialogFillsTheThreeFieldsAndTypedFontsStayAsTheyAre)
{
    m_page.FontRow();
    Show();
    EXPECT_TRUE(TextIn("cboFont") == u"Arial");
    for (const auto& [name, text] : std::vector<std::pair<const char*, TextView>>{
             {"cboFont", u"arial"}, {"cboFontSize", u"1"}, {"cboFontStyle", u"Bold"}}) {
        auto* box = Find<QComboBox>(m_window, name);
        box->setFocus();
        Press(*box, Qt::Key_A, Qt::ControlModifier);
        Type(m_window, name, text);
        Find<QWidget>(m_window, "cmdMoreFonts")->setFocus();
        EXPECT_EQ(TextIn(name), text);
    }
    m_desk.Dialogs.AnswerFont({u"Serif Sans", u"13", true, true});
    Click(m_window, "cmdMoreFonts");
    EXPECT_EQ(m_desk.Dialogs.FontStarts, (std::vector<FontChoice>{{u"arial", u"1", true, false}}));
    EXPECT_EQ(TextIn("cboFont"), u"Serif Sans");
    EXPECT_EQ(TextIn("cboFontSize"), u"13");
    EXPECT_EQ(TextIn("cboFontStyle"), u"Bold Italic");
}

TEST_F(VocabularyTest, AComboBoxGoesOnFromTheItemOfItsText)
{
    static constexpr std::array<TextView, 3> items = {u"one", u"two", u"three"};
    QComboBox* box = m_page.ComboBox("cbo", u"Number:", items, true);
    SetComboText(*box, u"two");
    Show();
    Press(*box, Qt::Key_Down);
    EXPECT_EQ(TextIn("cbo"), u"three");
    SetComboText(*box, u"TWO");
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(TextIn("cbo"), u"TWO");
}

TEST_F(VocabularyTest, AChoiceIsReadByTheValueBehindItsCaption)
{
    static constexpr ChoiceItem items[] = {{u"0", u"For ever"}, {u"1"}, {u"all", u"2"}};
    m_page.ChoiceBox("cbo", u"Closed:", items);
    m_page.OpenChoiceBox("cboOpen", u"Open:", items);
    Show();
    FieldControls controls(m_window);
    const std::tuple<const char*, TextView, TextView, TextView> rows[] = {
        {"cbo", u"all", u"2", u"all"},        {"cbo", u"other", u"", u""},
        {"cboOpen", u"0", u"For ever", u"0"}, {"cboOpen", u"2", u"2", u"all"},
        {"cboOpen", u"x", u"x", u"x"},        {"cboOpen", u"", u"", u""},
    };
    for (const auto& [name, value, shown, expected] : rows) {
        controls.Write(name, Text(value));
        EXPECT_EQ(TextIn(name), shown);
        Text read;
        controls.Read(name, read);
        EXPECT_EQ(read, expected);
    }
    Type(m_window, "cboOpen", u"For ever");
    Text typed;
    controls.Read("cboOpen", typed);
    EXPECT_EQ(typed, u"0");
    auto* open = Find<QComboBox>(m_window, "cboOpen");
    LeadTo(*open);
    EXPECT_EQ(open->lineEdit()->selectedText(), QStringLiteral("For ever"));
}

TEST_F(VocabularyTest, NumbersStepWithinTheirBoundsAndTakeAnyText)
{
    m_page.NumberBox("txt", u"Padding:", 0, 50)->setText(QStringLiteral("2"));
    Show();
    Press(*Find<QWidget>(m_window, "txt"), Qt::Key_Up);
    EXPECT_EQ(TextIn("txt"), u"3");
    Click(m_window, "txtDown");
    EXPECT_EQ(TextIn("txt"), u"2");
    Find<QLineEdit>(m_window, "txt")->setText(QStringLiteral("50em"));
    Click(m_window, "txtUp");
    EXPECT_EQ(TextIn("txt"), u"50");
    for (const auto& [least, most, up] :
         {std::tuple(0.2, 10.0, u"1.4"), std::tuple(0.0, 4000.0, u"11")}) {
        Find<QLineEdit>(m_window, "txt")->setText(QStringLiteral("1.3"));
        FieldControls(m_window).TakeBounds(NumberField("txt", least, most));
        Click(m_window, "txtUp");
        EXPECT_EQ(TextIn("txt"), up);
    }
    ShowComplaint(m_window, m_desk.Dialogs, {u"Too much.", "txt"});
    EXPECT_EQ(Find<QLineEdit>(m_window, "txt")->selectedText(), QStringLiteral("11"));
}

TEST_F(VocabularyTest, ATextBoxTakesWhateverLength)
{
    QLineEdit* box = m_page.TextBox("txt", u"Text:");
    box->setText(QString(100'000, u'x'));
    EXPECT_EQ(box->text().size(), 100'000);
}

TEST_F(VocabularyTest, AClickOnADescriptionSelectsItsOption)
{
    m_page.Option("opt", 0, u"First", u"Words of the first");
    m_page.Option("opt", 1, u"Second", u"Words of the second");
    Show();
    for (QLabel* label : m_window.findChildren<QLabel*>()) {
        const QPointF middle = label->rect().center();
        QMouseEvent press(QEvent::MouseButtonPress, middle, label->mapToGlobal(middle),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        if (label->text() == QStringLiteral("Words of the second"))
            QApplication::sendEvent(label, &press);
    }
    EXPECT_TRUE(Find<QRadioButton>(m_window, "opt(1)")->isChecked());
}

TEST_F(VocabularyTest, BrowseFillsALockedFieldAndRefusesABlank)
{
    Text source;
    m_page.LockedBrowseRow("txtImage", u"Image:", {},
                           {.Button = "cmdBrowse",
                            .Caption = u"Browse...",
                            .Request = {.Title = u"Open", .Filter = u"All|*.*"},
                            .NoBlanks = FileRole::Image,
                            .Source = &source});
    Show();
    auto* box = Find<QWidget>(m_window, "txtImage");
    Type(m_window, "txtImage", u"x");
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Left, Qt::Key_End})
        Press(*box, key);
    Press(*box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid().size(), 4u);
    Press(*box, Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("cmdBrowse"));

    for (const std::optional<Text>& answer :
         {std::optional<Text>(u"/my pics/a.gif"), {}, {u"/my pics/a b.gif"}}) {
        Find<QWidget>(m_window, "cmdBrowse")->setFocus();
        m_desk.Dialogs.AnswerOpenFile(answer);
        Click(m_window, "cmdBrowse");
        EXPECT_EQ(m_window.focusWidget(), box);
    }
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    EXPECT_EQ(TextIn("txtImage"), u"a.gif");
    EXPECT_EQ(source, u"/my pics/a.gif");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).Filter, u"All|*.*");
}

TEST_F(VocabularyTest, AComplaintWithoutAControlLeavesTheFocusWhereItWas)
{
    m_page.TextBox("txt", u"Text:");
    m_page.Buttons({m_page.Button("cmd", u"Go")});
    Show();
    Find<QWidget>(m_window, "cmd")->setFocus();
    ShowComplaint(m_window, m_desk.Dialogs, {.Words = u"No.", .Control = {}});
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("cmd"));
    ShowComplaint(m_window, m_desk.Dialogs, {.Words = u"No.", .Control = "txt"});
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("txt"));
}

TEST_F(VocabularyTest, ALetterWithAltIsTypedNowhere)
{
    static constexpr std::array<TextView, 1> items = {u""};
    m_page.TextBox("txt", u"Text:");
    m_page.MultiLineBox("txtLines", u"Lines:");
    m_page.NumberBox("txtNumber", u"Number:", 0, 9);
    m_page.ComboBox("cbo", u"Box:", items, true);
    Show();
    for (const char* name : {"txt", "txtLines", "txtNumber", "cbo"}) {
        auto* field = Find<QWidget>(m_window, name);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_N, Qt::AltModifier, QStringLiteral("n"));
        QApplication::sendEvent(field, &press);
        EXPECT_EQ(TextIn(name), u"") << name;
        Type(m_window, name, u"n");
        EXPECT_EQ(TextIn(name), u"n") << name;
    }
}

TEST_F(VocabularyTest, AHintStandsBelowItsFieldAsLongAsItHolds)
{
    QLineEdit* box = m_page.TextBox("txt", u"Text:");
    QLineEdit* below = m_page.TextBox("txtBelow", u"Below:");
    m_page.TextBox("txtHidden", u"Hidden:")->hide();
    m_page.ListBox("lst", u"List:", {});
    HintLines lines(m_window);
    Show();
    for (int time = 0; time < 2; ++time) {
        lines.Show({{"txt", u"First"}, {"txtHidden", u"Second"}, {"lst", u"Third"}});
        LetRun();
        const auto* line = Find<QLabel>(m_window, "lblHint(txt)");
        EXPECT_EQ(line->text(), QStringLiteral("First"));
        EXPECT_GE(line->y(), box->geometry().bottom());
        EXPECT_LT(line->y() - box->geometry().bottom(), below->y() - line->geometry().bottom());
        EXPECT_EQ(box->accessibleDescription(), line->text());
        EXPECT_EQ(m_window.findChild<QLabel*>("lblHint(txtHidden)"), nullptr);
        EXPECT_TRUE(Find<QLabel>(m_window, "lblHint(lst)")->isVisible());
        ExpectAccessible(m_window);
        lines.Show({{"lst", u"Third"}});
        EXPECT_FALSE(line->isVisible());
        EXPECT_EQ(box->accessibleDescription(), QString());
    }
}

TEST_F(VocabularyTest, AHiddenRowTakesItsLabelAndItsRoomAlongAndLeavesTheOthersTheirs)
{
    QLineEdit* boxes[] = {m_page.TextBox("txt", u"Text:", {}, u"pixels"),
                          m_page.TextBox("txt1", u"Text:"), m_page.TextBox("txt2", u"Text:"),
                          m_page.TextBox("txt3", u"Text:")};
    m_page.Fill();
    HintLines lines(m_window);
    Show();
    const auto gap = [&](int from, int to) {
        LetRun();
        return boxes[to]->y() - boxes[from]->geometry().bottom();
    };
    const int usual = gap(0, 1);
    for (int time = 0; time < 2; ++time) {
        ShowRow(boxes[0], false);
        ShowRow(boxes[2], false);
        EXPECT_FALSE(boxes[0]->isVisible() || LabelOf(boxes[0])->isVisible());
        EXPECT_EQ(gap(1, 3), usual);
        lines.Show({{"txt1", u"Some words that wrap"}});
        EXPECT_GT(gap(1, 3), usual);
        ShowRow(boxes[0], true);
        LetRun();
        EXPECT_EQ(boxes[1]->height(), boxes[3]->height());
        EXPECT_EQ(boxes[0]->height(), boxes[3]->height());
        lines.Show({});
        EXPECT_EQ(gap(1, 3), usual);
        ShowRow(boxes[2], true);
        EXPECT_EQ(gap(2, 3), usual);
        EXPECT_TRUE(LabelOf(boxes[0])->isVisible());
    }
}

const std::vector<RowButton> rowButtons = {{RowCommand::Add, "cmdAdd", u"Add"},
                                           {RowCommand::Edit, "cmdEdit", u"Edit"},
                                           {RowCommand::Remove, "cmdRemove", u"Remove"},
                                           {RowCommand::MoveUp, "cmdUp", u"Up"},
                                           {RowCommand::MoveDown, "cmdDown", u"Down"}};
constexpr RowListWords rowWords = {u"edit empty",  u"edit none", u"remove empty",
                                   u"remove none", u"cannot up", u"cannot down"};

class RowListPanelTest : public VocabularyTest
{
protected:
    RowListPanelTest()
    {
        m_page.Fill(&m_rows);
        QObject::connect(&m_rows, &RowListPanel::EditWanted, [this] { ++m_edits; });
        Show();
    }

    Texts Column(std::size_t field) const
    {
        Texts texts;
        for (const FieldTexts& row : m_rows.Rows())
            texts.push_back(row.at(field));
        return texts;
    }

    RowListPanel& m_rows =
        *new RowListPanel({.Columns = {{"lstItems", u"Items:"}, {"lstLinks", u"Links:"}},
                           .Words = rowWords,
                           .Buttons = rowButtons},
                          m_desk.Dialogs);
    int m_edits = 0;
};

TEST_F(RowListPanelTest, CommandsFollowTheSelectedRowAndTellWhatTheyLack)
{
    EXPECT_FALSE(Find<QWidget>(m_window, "cmdEdit")->isEnabled());
    emit Find<ActingList>(m_window, "lstItems")->DoubleClicked();
    m_rows.AddRow({u"a", u""});
    m_rows.AddRow({u"b\r\nsecond line", u"b.html"});
    EXPECT_EQ(m_rows.Selected(), 1u);
    Find<ActingList>(m_window, "lstItems")->clearSelection();
    for (const char* button : {"cmdEdit", "cmdRemove", "cmdUp", "cmdDown"})
        Click(m_window, button);
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              (Texts{u"edit empty", u"edit none", u"remove none", u"cannot up", u"cannot down"}));
    EXPECT_EQ(Find<ActingList>(m_window, "lstItems")->item(1)->text(), QStringLiteral("b"));

    auto* links = Find<ActingList>(m_window, "lstLinks");
    links->setCurrentRow(1);
    Click(m_window, "cmdEdit");
    Press(*links, Qt::Key_Return);
    EXPECT_EQ(m_edits, 2);
    Click(m_window, "cmdUp");
    EXPECT_EQ(Column(0), (Texts{u"b\r\nsecond line", u"a"}));
    Click(m_window, "cmdUp");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{u"cannot up"});
    Press(*links, Qt::Key_Delete);
    EXPECT_EQ(Column(1), Texts{u""});
    EXPECT_EQ(m_rows.Selected(), 0u);
    Find<QWidget>(m_window, "cmdRemove")->setFocus();
    Click(m_window, "cmdRemove");
    EXPECT_FALSE(Find<QWidget>(m_window, "cmdRemove")->isEnabled());
    for (int times = 0; times < 3; ++times)
        Press(*m_window.focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Column(0), (Texts{u"b\r\nsecond line", u"a"}));
    EXPECT_EQ(m_rows.Selected(), 0u);
}

TEST_F(RowListPanelTest, IsOneStopOfTabAndTheFirstArrowSelectsTheFirstRow)
{
    m_rows.AddRow({u"a", u"1"});
    m_rows.AddRow({u"b", u"2"});
    auto* items = Find<ActingList>(m_window, "lstItems");
    items->clearSelection();
    items->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(items->currentRow(), -1);
    Press(*items, Qt::Key_Down);
    EXPECT_EQ(m_rows.Selected(), 0u);
    Press(*items, Qt::Key_Down);
    EXPECT_EQ(m_rows.Selected(), 1u);
    EXPECT_EQ(Find<ActingList>(m_window, "lstLinks")->SelectedRow(), 1);
    Press(*items, Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget()->objectName(), QStringLiteral("cmdAdd"));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up})
        Press(*items, key, Qt::AltModifier);
    EXPECT_EQ(Column(0), (Texts{u"b", u"a"})) << "without a word at the ends";
}

} // namespace
} // namespace orvane::testing
