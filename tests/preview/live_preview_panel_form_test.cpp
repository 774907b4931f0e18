#include "preview/live_preview_panel.h"

#include "services/recent_files.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_browser_page.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>

namespace orvane::testing {
namespace {

/// The panel over a workbench of doubles, beside a wizard that would deliver `m_effect`.
class LivePreviewPanelFormTest : public ::testing::Test
{
protected:
    LivePreviewPanelFormTest()
    {
        m_desk.Files.Contents[m_page] = "<html><head></head><body>mine</body></html>";
        PutRecentFile(m_desk.Settings, recentPages, m_page);
    }

    /// Shows the panel and waits until the first picture could be there.
    void Open()
    {
        m_panel.resize(400, 500);
        m_panel.show();
        EXPECT_TRUE(WaitFor([&] { return m_asked > 0; }, 2000));
    }
    /// Changes the effect, and waits for what comes of it.
    void Make(Deliverable effect)
    {
        m_effect = std::move(effect);
        const int before = m_asked;
        m_panel.Update();
        EXPECT_TRUE(WaitFor([&] { return m_asked > before; }, 2000));
    }
    static Deliverable Bold(TextView words)
    {
        return EffectPayload{.Kind = EffectKind::PopupAlert, .BODYHTML = Join({u"<b>", words})};
    }
    /// Whether the page that the pane shows holds these bytes.
    bool Shows(std::string_view bytes) const
    {
        return !m_desk.Pane.Live.empty() &&
               m_desk.Pane.Live.back().Bytes->find(bytes) != std::string::npos;
    }
    Text Line() { return WordsOf(m_panel, "lblPreviewCheck"); }
    std::size_t Count() const { return m_desk.Pane.Live.size(); }

    const Text m_page = u"/site/index.html";
    FakeDesk m_desk;
    Deliverable m_effect = Complaint{u"Please enter a text.", "txtText"};
    int m_asked = 0;
    LivePreviewPanel m_panel{m_desk.Bench, nullptr, [this] {
                                 ++m_asked;
                                 return m_effect;
                             }};
};

TEST_F(LivePreviewPanelFormTest, KeepsTheLastGoodPictureAndSaysTheChecksWords)
{
    Open();
    ExpectAccessible(m_panel);
    EXPECT_EQ(Line(), u"Please enter a text.");
    EXPECT_EQ(Count(), 0u);
    Make(Bold(u"one"));
    EXPECT_TRUE(Shows("<b>one"));
    EXPECT_EQ(Line(), u"");
    Make(Bold(u"one"));
    EXPECT_EQ(Count(), 1u) << "nothing changed";
    Make(Complaint{u"Too long.", {}});
    EXPECT_EQ(Line(), u"Too long.");
    EXPECT_EQ(Count(), 1u);
    Click(m_panel, "cmdRunAgain");
    EXPECT_EQ(Count(), 2u);
    EXPECT_TRUE(Shows("<b>one"));
    EXPECT_TRUE(m_desk.Dialogs.Said.empty());

    m_panel.hide();
    const int before = m_asked;
    m_panel.Update();
    EXPECT_FALSE(WaitFor([&] { return m_asked > before; }, 300)) << "nobody looks";
    m_panel.show();
    EXPECT_TRUE(WaitFor([&] { return Count() == 3; }, 2000));
}

TEST_F(LivePreviewPanelFormTest, ShowsOneOfManyChangesWhileTheyGoOn)
{
    Open();
    QElapsedTimer watch;
    watch.start();
    for (int i = 0; i < 40; ++i) {
        m_effect = Bold(u"x" + Text(static_cast<std::size_t>(i), u'x'));
        m_panel.Update();
        static_cast<void>(WaitFor([] { return false; }, 10));
    }
    EXPECT_GE(m_asked, 3) << "a slider is followed while it is dragged";
    EXPECT_LE(m_asked, watch.elapsed() / 12 + 2);
}

TEST_F(LivePreviewPanelFormTest, ShowsTheEffectInARecentPageWhichItOnlyReads)
{
    Open();
    Pick(m_panel, "cboPreviewIn", "index.html");
    EXPECT_TRUE(Shows("<body>mine")) << "without the effect, which is not ready yet";
    EXPECT_TRUE(m_desk.Pane.Live.back().ScrollsToMark == false);
    Make(Bold(u"one"));
    EXPECT_TRUE(Shows("<b>one"));
    EXPECT_TRUE(Shows("mine"));
    EXPECT_TRUE(m_desk.Pane.Live.back().ScrollsToMark);
    m_desk.Files.Contents[m_page] = "<html><head></head><body>mine too</body></html>";
    Make(Bold(u"two"));
    EXPECT_TRUE(Shows("mine too"));
    EXPECT_FALSE(m_desk.Pane.Live.back().ScrollsToMark) << "the author may have scrolled since";
    m_desk.Files.Contents.erase(m_page);
    Make(Bold(u"three"));
    EXPECT_TRUE(Shows("mine too"));
    EXPECT_TRUE(Shows("<b>three"));
    EXPECT_EQ(Line(), u"The page is not there any more: /site/index.html  ");
    EXPECT_TRUE(m_desk.Files.Writes.empty());
    EXPECT_TRUE(m_desk.Files.Removals.empty());
    Pick(m_panel, "cboPreviewIn", "an empty page");
    EXPECT_FALSE(Shows("mine"));
}

TEST_F(LivePreviewPanelFormTest, BrowsesForAPageAndKeepsItForTheNextWizard)
{
    Open();
    m_desk.Dialogs.AnswerOpenFile(std::nullopt);
    Pick(m_panel, "cboPreviewIn", "Browse...");
    EXPECT_EQ(Find<QComboBox>(m_panel, "cboPreviewIn")->currentText(), "an empty page");
    m_desk.Files.Contents[u"/b/b.html"] = "<body>picked</body>";
    m_desk.Dialogs.AnswerOpenFile(u"/b/b.html");
    Pick(m_panel, "cboPreviewIn", "Browse...");
    EXPECT_TRUE(Shows("picked"));
    LivePreviewPanel next(m_desk.Bench, nullptr, [this] { return m_effect; });
    next.show();
    EXPECT_TRUE(WaitFor([&] { return Count() == 2; }, 2000));
    EXPECT_EQ(Find<QComboBox>(next, "cboPreviewIn")->currentText(), "b.html");
}

TEST_F(LivePreviewPanelFormTest, PassesTheViewsOn)
{
    Open();
    Make(Bold(u"one"));
    Pick(m_panel, "cboPreviewView", "Phone width");
    EXPECT_EQ(m_desk.Pane.Live.back().View.Width, 390);
    Find<QCheckBox>(m_panel, "chkReducedMotion")->click();
    EXPECT_TRUE(m_desk.Pane.Live.back().View.HasReducedMotion);
    Find<QCheckBox>(m_panel, "chkRunsScript")->click();
    EXPECT_EQ(m_desk.Pane.Live.back().View,
              (PaneView{.Width = 390, .HasReducedMotion = true, .RunsScript = false}));
}

} // namespace
} // namespace orvane::testing
