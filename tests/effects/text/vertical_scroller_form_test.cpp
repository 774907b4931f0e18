#include "effects/text/vertical_scroller_form.h"

#include "tests/support/form_test.h"
#include "tests/support/qt_mouse.h"
#include "windows/ok_cancel_form.h"

#include <QPlainTextEdit>

namespace orvane::testing {
namespace {

class VerticalScrollerFormTest : public FormTest<VerticalScrollerForm>
{
protected:
    /// Adds a message by the small window.
    void Add(const char* item, TextView link)
    {
        Click(m_form, "cmdAdd");
        auto* add = m_form.findChild<OkCancelForm*>();
        ASSERT_NE(add, nullptr);
        Find<QPlainTextEdit>(*add, "txtItem")->setPlainText(QString::fromUtf8(item));
        Type(*add, "txtItemURL", link);
        Click(*add, "cmdOK");
    }
};

TEST_F(VerticalScrollerFormTest, FromFreshToPayloadAndOnceMore)
{
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Please add an item to the list."});
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("cmdAdd"));
    Add("First\nline", u"WWW.x");
    Click(m_form, "cmdNext");
    m_desk.Dialogs.AnswerColor(0xFF);
    Click(m_form, "cmdLinkColor");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtWidth"));
    EXPECT_EQ(WordsOf(m_form, "cmdNext"), u"&Done");
    Type(m_form, "txtHeight", u" px");
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said().size(), 1u);
    Find<QLineEdit>(m_form, "txtHeight")->setText(QStringLiteral("80"));
    Click(m_form, "cmdNext");
    const VerticalScroller wanted{.Items = {{u"First\r\nline", u"http://WWW.x"}},
                                  .TextColor = u"#000000",
                                  .LinkColor = u"rgb(255,0,0)",
                                  .txtHeight = u"80",
                                  .BGColor = u"#FFFFFF"};
    EXPECT_EQ(m_form.TakePayload(), Generate(wanted));
    EXPECT_EQ(m_form.Parameters(), wanted);

    // Back from the delivery: Done does nothing, Previous after it ends the wizard again, and
    // Previous at once shows the page, from which Done ends it.
    m_form.show();
    EXPECT_EQ(WordsOf(m_form, "cmdBGColor"), u"Select Color");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.TakePayload(), std::nullopt);
    Click(m_form, "cmdPrevious");
    EXPECT_EQ(m_form.TakePayload(), Generate(wanted));
    m_form.show();
    Click(m_form, "cmdPrevious");
    EXPECT_EQ(m_form.TakePayload(), std::nullopt);
    EXPECT_TRUE(Find<QLineEdit>(m_form, "txtWidth")->isVisible());
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.TakePayload(), Generate(wanted));
}

TEST_F(VerticalScrollerFormTest, EditingStartsWithTheRowAndTakesAPickedPagesName)
{
    Add("one", u"a.html");
    Add("two", u"");
    EXPECT_EQ(SelectedRowOf(m_form, "lstItems"), 1);
    DoubleClickRow(m_form, "lstLinks", 0);
    auto* edit = m_form.findChild<OkCancelForm*>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(WordsOf(*edit, "txtItem"), u"one");
    EXPECT_EQ(WordsOf(*edit, "txtItemURL"), u"a.html");
    m_desk.Dialogs.AnswerOpenFile(u"/my site/b c.html");
    Click(*edit, "cmdBrowseURL");
    EXPECT_NE(Find(m_desk.Dialogs.Requests[0].Filter, u"*.asp;*.php;*.phtml|"), 0u);
    Find<QPlainTextEdit>(*edit, "txtItem")->clear();
    Click(*edit, "cmdOK");
    EXPECT_EQ(Said(), Texts{u"Enter item text in the text input box below."});
    Find<QPlainTextEdit>(*edit, "txtItem")->setPlainText(QStringLiteral("1"));
    Click(*edit, "cmdOK");
    EXPECT_EQ(SelectedRowOf(m_form, "lstItems"), 0);
    EXPECT_EQ(m_form.Parameters().Items,
              (std::vector<ScrollerItem>{{u"1", u"b c.html"}, {u"two", u""}}));
    m_form.SetParameters(m_form.Parameters());
    EXPECT_EQ(SelectedRowOf(m_form, "lstItems"), 0);
}

} // namespace
} // namespace orvane::testing
