#include "effects/text/digital_clock_form.h"

#include "tests/support/form_test.h"

#include <QListWidget>

namespace orvane::testing {
namespace {

class DigitalClockFormTest : public FormTest<DigitalClockForm>
{
protected:
    void ChooseFormat(const QString& item)
    {
        auto* list = Find<QListWidget>(m_form, "lstDateTimeFormat");
        list->setCurrentItem(list->findItems(item, Qt::MatchExactly).constFirst());
    }

    /// Types over what stands in a box.
    void Retype(const char* name, TextView text)
    {
        auto* box = Find<QWidget>(m_form, name);
        Press(*box, Qt::Key_A, Qt::ControlModifier);
        Type(m_form, name, text);
    }

    Text Heading() { return WordsOf(m_form, "lblHeading"); }
};

TEST_F(DigitalClockFormTest, ShowsItsPagesForthAndBack)
{
    const std::vector<std::pair<Text, const char*>> stops = {
        {u"Digital Clock - Step 1: Select Date and/or Time", "optDateTime(0)"},
        {u"Digital Clock - Step 2: Set Date format", "lstDateTimeFormat"},
        {u"Digital Clock - Step 3: Set Time format", "chkShowTimeBeforeDate"},
        {u"Digital Clock - Step 4: Set clock properties", "txtPadding"}};
    const auto expectStop = [&](std::size_t at) {
        EXPECT_EQ(ToUtf8(Heading()), ToUtf8(stops[at].first));
        EXPECT_TRUE(Find<QWidget>(m_form, stops[at].second)->isVisible());
        EXPECT_EQ(WordsOf(m_form, "cmdNext"), at == 3 ? u"&Done" : u"&Next >>");
        EXPECT_EQ(Find<QWidget>(m_form, "cmdPrevious")->isEnabled(), at > 0);
    };
    Click(m_form, "optDateTime(2)");
    ChooseFormat(QStringLiteral("November 28"));
    for (std::size_t at = 0; at < stops.size(); ++at) {
        expectStop(at);
        ExpectAccessible(m_form);
        if (at < 3)
            Click(m_form, "cmdNext");
    }
    for (std::size_t at = 3; at-- > 0;) {
        Click(m_form, "cmdPrevious");
        expectStop(at);
    }
}

TEST_F(DigitalClockFormTest, StaysOnTheDatePageUntilAFormatIsChosen)
{
    Click(m_form, "cmdNext");
    m_form.activateWindow();
    // Tab puts the keyboard on the first item and selects none.
    Find<QListWidget>(m_form, "lstDateTimeFormat")->setFocus(Qt::TabFocusReason);
    Click(m_form, "cmdNext");
    EXPECT_EQ(Said(), Texts{u"Please select a Date format from the list below."});
    EXPECT_EQ(Heading(), u"Digital Clock - Step 2: Set Date format");
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("lstDateTimeFormat"));
}

TEST_F(DigitalClockFormTest, ComesBackToItsLastPageWithAStepTooManyBehindIt)
{
    Click(m_form, "optDateTime(1)");
    Click(m_form, "cmdNext");
    Click(m_form, "cmdNext");
    Click(m_form, "cmdNext");
    ASSERT_TRUE(m_form.TakePayload());

    m_form.show();
    EXPECT_EQ(Heading(), u"Digital Clock - Step 3: Set clock properties");
    Retype("txtPadding", u"7");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.TakePayload(),
              Generate({.optDateTime = ClockContent::Time, .txtPadding = u"7"}));

    m_form.show();
    Click(m_form, "cmdPrevious");
    EXPECT_EQ(Heading(), u"Digital Clock - Step 4: Set Time format");
}

} // namespace
} // namespace orvane::testing
