#include "core/draft.h"
#include "effects/effects.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_live_desk.h"
#include "windows/qt_text.h"

#include <QAbstractSlider>
#include <QTest>

namespace orvane::testing {
namespace {

class LiveWizardBrowserTest : public ::testing::Test
{
protected:
    /// Opens the wizard, and waits for its picture.
    template <class Effect>
    void Open(const Effect& effect)
    {
        EXPECT_TRUE(m_desk.BringsPicture(
            [&] { m_wizard = m_desk.Open(Effect::Kinds[0], WriteDraft(effect)); }));
    }
    /// Whether the picture becomes one whose code holds these words.
    bool ComesToHold(const QString& words)
    {
        return WaitFor([&] {
            return m_desk.Page.Value("document.documentElement.outerHTML")
                .toString()
                .contains(words);
        });
    }
    /// Goes to the field and presses the key there as fast as it repeats.
    void Hold(const char* field, Qt::Key key, int times)
    {
        auto* control = Find<QWidget>(*m_wizard, field);
        control->setFocus(Qt::TabFocusReason);
        const QWidget* focus = m_wizard->focusWidget();
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(control, key);
            QTest::qWait(15);
            EXPECT_EQ(m_wizard->focusWidget(), focus) << field;
        }
    }

    LiveDesk m_desk;
    std::unique_ptr<WizardForm> m_wizard;
};

TEST_F(LiveWizardBrowserTest, FollowsFastKeysInFieldsOfEachKind)
{
    Open(SmoothScroll{.lstMessages = {{u"Hello", {}}}});
    Click(*m_wizard, "cmdNext");
    Hold("cboDirection", Qt::Key_Down, 20);
    EXPECT_TRUE(ComesToHold("data-direction=\"right\""));
    Hold("sldrSpeed", Qt::Key_Right, 20);
    const int speed = Find<QAbstractSlider>(*m_wizard, "sldrSpeed")->value();
    EXPECT_TRUE(ComesToHold(QStringLiteral("data-speed=\"%1\"").arg(speed)));
    Hold("txtGap", Qt::Key_1, 3);
    EXPECT_TRUE(ComesToHold("data-gap=\"111\""));
    Click(*m_wizard, "cmdNext");
    Hold("chkFadedEdges", Qt::Key_Space, 21);
    EXPECT_TRUE(ComesToHold("data-faded-edges=\"yes\""));
}

TEST_F(LiveWizardBrowserTest, KeepsThePictureWhileANeededFieldIsEmpty)
{
    Open(StatusBarTicker{u"x"});
    const int before = m_desk.Page.LiveShown;
    Hold("txtStatusBarText", Qt::Key_Backspace, 20);
    const auto complaint = [&] { return std::get<Complaint>(m_wizard->WouldDeliver()).Words; };
    EXPECT_TRUE(WaitFor([&] { return WordsOf(*m_wizard, "lblPreviewCheck") == complaint(); }));
    EXPECT_EQ(m_desk.Page.LiveShown, before);
    Hold("txtStatusBarText", Qt::Key_Z, 30);
    EXPECT_TRUE(ComesToHold(QString(30, u'z')));
    EXPECT_TRUE(m_desk.Page.Dialogs.Said.empty());
}

TEST_F(LiveWizardBrowserTest, AWindowThatClosesDuringALoadLeavesThePaneToTheNextOne)
{
    for (const char* words : {"one", "two", "three"}) {
        Open(SmoothScroll{.lstMessages = {{FromQt(QLatin1String(words)), {}}}});
        EXPECT_TRUE(ComesToHold(QLatin1String(words)));
        Click(*m_wizard, "cmdNext");
        Hold("sldrSpeed", Qt::Key_Right, 8); // the load of some of these still goes on
        m_wizard.reset();
        EXPECT_EQ(m_desk.Page.Pane.parentWidget(), nullptr);
        EXPECT_EQ(m_desk.Page.Note(), u"");
    }
}

} // namespace
} // namespace orvane::testing
