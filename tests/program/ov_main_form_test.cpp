#include "program/ov_main_form.h"

#include "services/chosen_effects.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/link_label.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QApplication>
#include <QEnterEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace orvane::testing {
namespace {

class OVMainFormTest : public ::testing::Test
{
protected:
    OVMainFormTest()
    {
        m_form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_form));
    }

    QToolButton* ButtonOf(const CatalogueRow& row)
    {
        return m_form.findChild<QToolButton*>(
            QStringLiteral("cmdSpecialFX(%1)").arg(static_cast<int>(row.Kind)));
    }

    QAction* Command(const char* name)
    {
        return m_form.findChild<QAction*>(QString::fromUtf8(name));
    }

    FakeDesk m_desk;
    OVMainForm m_form{m_desk.Bench};
};

TEST_F(OVMainFormTest, ShowsAPictureAndATitleForEveryEffect)
{
    int all = 0;
    std::vector<EffectKind> wanted;
    QObject::connect(&m_form, &OVMainForm::EffectWanted,
                     [&](EffectKind kind) { wanted.push_back(kind); });
    for (const int tab : {1, 2, 0})
        Find<QTabBar>(m_form, "TabStrip1")->setCurrentIndex(tab);
    for (const CatalogueRow& row : Catalogue()) {
        ASSERT_NE(ButtonOf(row), nullptr) << ToUtf8(row.Title);
        ButtonOf(row)->click();
        ++all;
    }
    EXPECT_EQ(all, 50);
    EXPECT_EQ(std::ranges::count(wanted, EffectKind::PasswordScript), 2);
    int buttons = 0;
    for (const CatalogueRow& row : Catalogue()) {
        const QToolButton* button = ButtonOf(row);
        if (!button->isVisibleTo(button->parentWidget()))
            continue;
        EXPECT_FALSE(button->icon().pixmap(48, 48).isNull()) << row.MenuCommand;
        EXPECT_EQ(button->text().replace(u'\n', u' ').toStdString(), ToUtf8(row.Title));
        ++buttons;
    }
    EXPECT_EQ(buttons, 48);
    EXPECT_EQ(ButtonOf(*FindRow(EffectKind::Slideshow))->parentWidget()->objectName(),
              "Picture1(0)");
    EXPECT_EQ(ButtonOf(*FindRow(EffectKind::DigitalClock))->parentWidget()->objectName(),
              "Picture1(2)");
}

TEST_F(OVMainFormTest, EveryTabFitsIntoTheWindowAsItOpens)
{
    m_form.resize(m_form.sizeHint());
    for (const int tab : {1, 2, 0}) {
        Find<QTabBar>(m_form, "TabStrip1")->setCurrentIndex(tab);
        LetRun();
        const auto* area = m_form.findChild<QStackedWidget*>()->currentWidget();
        EXPECT_FALSE(static_cast<const QScrollArea*>(area)->verticalScrollBar()->isVisible());
    }
    // A window with less room, be it below or beside, scrolls what it cannot show.
    const QSize whole = m_form.size();
    const auto* area =
        static_cast<const QScrollArea*>(m_form.findChild<QStackedWidget*>()->currentWidget());
    for (const QSize size : {QSize(whole.width(), 400), QSize(600, whole.height())}) {
        m_form.resize(size);
        LetRun();
        EXPECT_TRUE(area->verticalScrollBar()->isVisible()) << size.width();
        m_form.resize(whole);
        LetRun();
        EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << size.width();
    }
}

TEST_F(OVMainFormTest, DescribesTheEffectUnderTheMouseAndWelcomesElsewhere)
{
    Find<QTabBar>(m_form, "TabStrip1")->setCurrentIndex(1);
    EXPECT_NE(WordsOf(m_form, "lblWelcome"), u"");
    const CatalogueRow& ticker = *FindRow(EffectKind::StatusBarTicker);
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(ButtonOf(ticker), &enter);
    EXPECT_EQ(WordsOf(m_form, "Label3"), ticker.Title);
    EXPECT_EQ(WordsOf(m_form, "Label2"), ticker.Description);
    EXPECT_EQ(WordsOf(m_form, "lblWelcome"), u"");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(ButtonOf(ticker), &leave);
    EXPECT_EQ(WordsOf(m_form, "Label3"), u"");
    EXPECT_EQ(WordsOf(m_form, "Label2"), u"");
    EXPECT_NE(WordsOf(m_form, "lblWelcome"), u"");
}

TEST_F(OVMainFormTest, LeadsInByLinksBesideTheWelcome)
{
    int pages = 0;
    QObject::connect(&m_form, &OVMainForm::PageEffectsWanted, [&] { ++pages; });
    auto* toPage = Find<LinkLabel>(m_form, "lblChangeOnPage");
    QTest::mouseClick(toPage, Qt::LeftButton, {}, toPage->rect().center());
    Press(*toPage, Qt::Key_Return);
    EXPECT_EQ(pages, 2);
    bool sawAll = false;
    QObject::connect(&m_form, &OVMainForm::AllEffectsWanted, [&] { sawAll = true; });
    Press(*Find<LinkLabel>(m_form, "lblSeeThemAll"), Qt::Key_Return);
    EXPECT_TRUE(sawAll);
    auto* toEffects = Find<LinkLabel>(m_form, "lblMakeEffect");
    for (const int tab : {1, 3}) {
        Find<QTabBar>(m_form, "TabStrip1")->setCurrentIndex(tab);
        Press(*toEffects, Qt::Key_Return);
        EXPECT_EQ(WordsOf(m_form, "Label3").empty(), tab == 3) << "no favorites yet";
    }
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtSearch"));
    EXPECT_TRUE(toEffects->isVisible()) << "beside a description, too";
    QTest::keyClick(toPage, Qt::Key_P);
    EXPECT_EQ(WordsOf(m_form, "txtSearch"), u"p");
    QTest::keyClick(m_form.focusWidget(), Qt::Key_Escape);
    EffectButtonIn(m_form, EffectKind::Slideshow)->setFocus();
    Find<QTabBar>(m_form, "TabStrip1")->setCurrentIndex(3);
    QTest::keyClick(m_form.focusWidget(), Qt::Key_F);
    EXPECT_EQ(WordsOf(m_form, "txtSearch"), u"f") << "from a page without anything to choose";
}

TEST_F(OVMainFormTest, ShrinksWithItsDescriptionInSight)
{
    m_form.resize(640, 440);
    LetRun();
    EXPECT_EQ(m_form.size(), QSize(640, 440));
    const auto* label = Find<QWidget>(m_form, "Label2");
    EXPECT_TRUE(m_form.rect().contains(QRect(label->mapTo(&m_form, QPoint()), label->size())));
    // The window stays still when the welcome gives way to a description.
    const int height = Find<QWidget>(m_form, "Picture1(0)")->parentWidget()->height();
    ButtonOf(*FindRow(EffectKind::ImageEffects))->setFocus();
    LetRun();
    EXPECT_EQ(Find<QWidget>(m_form, "Picture1(0)")->parentWidget()->height(), height);
}

TEST_F(OVMainFormTest, ReturnAndCommandOpenAnEffect)
{
    std::vector<EffectKind> wanted;
    QObject::connect(&m_form, &OVMainForm::EffectWanted,
                     [&](EffectKind kind) { wanted.push_back(kind); });
    QAbstractButton* button = EffectButtonIn(m_form, EffectKind::Sound);
    button->setFocus();
    EXPECT_EQ(WordsOf(m_form, "Label3"), u"Sound Effect");
    Press(*button, Qt::Key_Return);
    Command("mnuSoundFX")->trigger();
    EXPECT_EQ(wanted, std::vector<EffectKind>(2, EffectKind::Sound));
    Command("mnuImageTransitions")->trigger();
    EXPECT_TRUE(m_desk.Core.TransitionsImageMode);
    EffectButtonIn(m_form, EffectKind::TextTransitions)->click();
    EXPECT_FALSE(m_desk.Core.TransitionsImageMode);
    Command("mnuRandomQuote")->trigger();
    EXPECT_EQ(m_desk.Core.RandomMode, u"quote");
}

TEST_F(OVMainFormTest, KeysChangeTabsAndEndTheProgram)
{
    const auto* tabs = Find<QTabBar>(m_form, "TabStrip1");
    for (const int tab : {1, 2, 3, 0}) {
        QTest::keyClick(&m_form, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tabs->currentIndex(), tab);
    }
    QTest::keyClick(&m_form, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(tabs->currentIndex(), 3);
    QTest::keyClick(&m_form, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_form.isVisible());
}

TEST_F(OVMainFormTest, ArrowsFollowTheGridAsItIsShown)
{
    for (const int width : {640, 1400}) {
        m_form.resize(width, 600);
        LetRun();
        auto* first = ButtonOf(*FindRow(EffectKind::AdvancedAnimator));
        first->setFocus();
        int columns = 1;
        while (m_form.focusWidget()->y() == first->y() && columns++ < 20)
            Press(*m_form.focusWidget(), Qt::Key_Right);
        const QWidget* below = m_form.focusWidget();
        Press(*first, Qt::Key_Down);
        EXPECT_EQ(m_form.focusWidget(), below);
        EXPECT_EQ(below->x(), first->x());
        Press(*m_form.focusWidget(), Qt::Key_Up);
        EXPECT_EQ(m_form.focusWidget(), first);
        EXPECT_EQ(columns > 8, width > 640) << columns;
    }
}

TEST_F(OVMainFormTest, TypedLettersSearchAllTabsAndEscapeGivesThemBack)
{
    std::vector<EffectKind> wanted;
    QObject::connect(&m_form, &OVMainForm::EffectWanted,
                     [&](EffectKind kind) { wanted.push_back(kind); });
    auto* start = ButtonOf(*FindRow(EffectKind::AdvancedAnimator));
    start->setFocus();
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_L, Qt::Key_O})
        QTest::keyClick(m_form.focusWidget(), key);
    EXPECT_EQ(WordsOf(m_form, "txtSearch"), u"clo");
    EXPECT_EQ(WordsOf(m_form, "lblFound"), u"3 effects found");
    LetRun();
    ExpectAccessible(m_form);
    Press(*m_form.focusWidget(), Qt::Key_Return);
    Press(*m_form.focusWidget(), Qt::Key_Down);
    EXPECT_EQ(WordsOf(m_form, "Label3"), u"Digital Clock");
    Press(*m_form.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(wanted, std::vector<EffectKind>(2, EffectKind::DigitalClock));
    Press(*m_form.focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(Find<QTabBar>(m_form, "TabStrip1")->isVisible());
    EXPECT_EQ(m_form.focusWidget(), start);

    QTest::keyClick(m_form.focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(m_form.focusWidget(), QStringLiteral("zebra"));
    EXPECT_EQ(WordsOf(m_form, "lblFound"), u"0 effects found");
    Press(*m_form.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(wanted.size(), 2u);
}

TEST_F(OVMainFormTest, FavoritesAndRecentEffectsHaveATabOfTheirOwn)
{
    RememberEffect(m_desk.Settings, EffectKind::DigitalClock);
    ButtonOf(*FindRow(EffectKind::Slideshow))->setFocus();
    QTest::keyClick(m_form.focusWidget(), Qt::Key_D, Qt::ControlModifier);
    Find<QTabBar>(m_form, "TabStrip1")->setCurrentIndex(3);
    LetRun();
    ExpectAccessible(m_form);
    const auto* favorite = Find<QToolButton>(m_form, "cmdSpecialFX(47)");
    EXPECT_TRUE(favorite->isVisible());
    EXPECT_FALSE(favorite->icon().isNull());
    EXPECT_TRUE(Find<QToolButton>(m_form, "cmdRecentFX(4)")->isVisible());
    Find<QToolButton>(m_form, "cmdSpecialFX(47)")->setFocus();
    QTest::keyClick(m_form.focusWidget(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_FALSE(Find<QToolButton>(m_form, "cmdSpecialFX(47)")->isVisible());
    EXPECT_EQ(m_form.focusWidget()->objectName(), "cmdRecentFX(4)");
}

/// A menu's captions in order, with "-" for a separator and sub-menus in brackets.
QString Captions(const QMenu& menu)
{
    QStringList captions;
    for (const QAction* action : menu.actions()) {
        QString caption = action->isSeparator() ? QStringLiteral("-") : action->text();
        if (const QMenu* below = action->menu())
            caption += u'(' + Captions(*below) + u')';
        captions += caption;
    }
    return captions.join(u'|');
}

TEST_F(OVMainFormTest, MenuBarHasItsCaptionsInOrder)
{
    QStringList bar;
    for (const QAction* action : m_form.menuBar()->actions())
        bar += action->text() + u'(' + Captions(*action->menu()) + u')';
    EXPECT_EQ(bar.join(u'\n').toStdString(),
              R"menu(&File(&Open recipe...|&Bring back a page...|-|E&xit)
&Edit(&Edit Special Effect...|E&ffects on a page...|&Preferences...)
&Special Effects(&Image Effects(&Advanced Animator...|Animated Bu&tton...|A&nimation Wizard...|&Banner/Billboard Wizard...|&Dynamic Button...|&Falling/Floating Images...|&Image Effects...|Image &Fade...|Image &Rollover...|I&mage Scroller|Image &Transitions...|&More Image Effects...|Mouse &Cursor Trail...|Random I&mage...|&Slideshow...|Thought &Bubbles...)|&Text Effects(&AntiSpam Email Protector...|Fading &Message...|&Flashing Text...|Fl&ying Text...|&Navigator Ticker...|&Random Quote...|S&haking Text...|Sm&ooth Scrolling Text Ticker...|Status &Bar Text Ticker...|&Swirly Text...|Te&xt Button...|T&ext Effects...|&Text Transitions...|Toolt&ip...|T&ypewriter Text...|&Vertical Scrolling Text...)|&Other Special Effects(&All-in-one Button...|Background Color &Fade-in/Fade-out...|Color Sc&rollbars...|&Day Calendar...|Digital &Clock...|&Earthquake window...|Page &Transitions...|&Password Protection...|Personali&zed Web page...|Pop&Up Alert box...|PopUp &Window...|Pu&lldown Menu...|Search Box...|Sou&nd Effect...|Sc&rolling Credits...|Sliding Instant Message Window...|Web Page Translator...))
&Help(&Contents...|&See them all|Chec&k for update...|-|&About...))menu");
}

TEST_F(OVMainFormTest, UpdateCheckAsksFirstAndSendsTheTrimmedVersion)
{
    const Text question = u"You must be connected to the Internet to check for updates.\r\n\r\n"
                          u"Would you like to continue?";
    m_desk.Bench.Version = u" 1.2.3 ";
    m_desk.Dialogs.ExpectAsk(question, false);
    Command("mnuCheckForUpdate")->trigger();
    EXPECT_TRUE(m_desk.Shell.Opened.empty());
    m_desk.Dialogs.ExpectAsk(question, true);
    Command("mnuCheckForUpdate")->trigger();
    EXPECT_EQ(m_desk.Shell.Opened,
              Texts{u"http://www.varlo.example/updatecheck.asp?prog=OV&ver=1.2.3"});
}

TEST_F(OVMainFormTest, HelpBeginsWithTheContentsOrWithThisWindow)
{
    Command("mnuHelpContents")->trigger();
    QTest::keyClick(&m_form, Qt::Key_F1);
    EXPECT_EQ(m_desk.Help.Shown, (std::vector<int>{0, 10}));
}

} // namespace
} // namespace orvane::testing
