#include "help/help_form.h"

#include "core/catalogue.h"
#include "core/numbers.h"
#include "help/qt_topic_browser.h"
#include "program/form_desk.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"
#include "windows/shared_folder.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>
#include <QWindow>

namespace orvane::testing {
namespace {

class HelpFormTest : public ::testing::Test
{
protected:
    HelpFormTest()
    {
        m_files.Contents[u"/program/orvane.hlp"] =
            "=== 0 Contents\n<p>All about <a href=\"topic:7\">clocks</a></p>\n"
            "=== 7 A <B>\n<p>Seven</p>\n"
            "=== 9 Ticker\n<p>Nine</p>\n";
    }

    std::string Shown()
    {
        return Find<TopicBrowser>(m_form, "txtTopic")->toPlainText().trimmed().toStdString();
    }

    Texts Listed() { return RowsOf(m_form, "lstContents"); }

    std::string Marked()
    {
        const auto* item = Find<QListWidget>(m_form, "lstContents")->currentItem();
        return item == nullptr ? "" : item->text().toStdString();
    }

    bool IsEnabled(const char* button) { return Find<QPushButton>(m_form, button)->isEnabled(); }

    void FollowLink(const char* address)
    {
        emit Find<TopicBrowser>(m_form, "txtTopic")->anchorClicked(QUrl(QLatin1String(address)));
    }

    FakeFileStore m_files;
    FakeShell m_shell;
    HelpForm m_form{m_files, m_shell, u"/program"};
};

TEST_F(HelpFormTest, SaysWhyThereIsNoTopicToShow)
{
    m_form.ShowTopic(8);
    EXPECT_TRUE(Shown().starts_with("There is no help for this"));
    FollowLink("topic:0");
    EXPECT_EQ(Marked(), "Contents");

    m_files.FailOn(u"/program/orvane.hlp", Fault::PermissionDenied);
    HelpForm bookless(m_files, m_shell, u"/program");
    bookless.ShowTopic(7);
    EXPECT_TRUE(
        Find<TopicBrowser>(bookless, "txtTopic")->toPlainText().startsWith("The help cannot"));
}

TEST_F(HelpFormTest, WalksThroughTopicsAndHandsLinksToTheWebOver)
{
    EXPECT_TRUE(m_files.Reads.empty());
    m_form.ShowTopic(0);
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_FALSE(IsEnabled("cmdBack"));
    FollowLink("topic:7");
    ExpectAccessible(m_form);
    EXPECT_EQ(Shown(), "A <B>\nSeven");
    EXPECT_EQ(Listed(), (Texts{u"Contents", u"A <B>", u"Ticker"}));
    FollowLink("http://www.varlo.example/orvane/");
    FollowLink("file:///etc/passwd");
    EXPECT_EQ(m_shell.Opened, Texts{u"http://www.varlo.example/orvane/"});
    Find<QListWidget>(m_form, "lstContents")->setCurrentRow(2);
    Click(m_form, "cmdBack");
    EXPECT_EQ(Marked(), "A <B>");
    Click(m_form, "cmdBack");
    EXPECT_FALSE(IsEnabled("cmdBack"));
    Click(m_form, "cmdForward");
    EXPECT_EQ(Marked(), "A <B>");
}

TEST_F(HelpFormTest, SearchListsTheHitsAndEnterOpensTheFirst)
{
    m_form.ShowTopic(0);
    Type(m_form, "txtSearch", u"NINE");
    EXPECT_EQ(Listed(), Texts{u"Ticker"});
    EXPECT_EQ(Marked(), "");
    Press(*Find<QLineEdit>(m_form, "txtSearch"), Qt::Key_Return);
    EXPECT_EQ(Shown(), "Ticker\nNine");
    EXPECT_TRUE(m_form.isVisible());

    Type(m_form, "txtSearch", u" moon");
    EXPECT_EQ(Listed(), Texts{u"Nothing found"});
    Press(*Find<QLineEdit>(m_form, "txtSearch"), Qt::Key_Return);
    Click(m_form, "cmdContents");
    EXPECT_EQ(Listed().size(), 3u);
    EXPECT_EQ(Marked(), "Contents");
}

TEST_F(HelpFormTest, EscapeClosesAndTheNextTimeBeginsAfresh)
{
    m_form.ShowTopic(0);
    FollowLink("topic:7");
    Type(m_form, "txtSearch", u"nine");
    Press(*Find<QLineEdit>(m_form, "txtSearch"), Qt::Key_Escape);
    EXPECT_FALSE(m_form.isVisible());
    m_form.ShowTopic(9);
    EXPECT_FALSE(IsEnabled("cmdBack"));
    EXPECT_EQ(Listed().size(), 3u);
    EXPECT_EQ(Marked(), "Ticker");
}

TEST_F(HelpFormTest, LinksStayReadableOnADarkBackground)
{
    m_form.ShowTopic(0);
    auto* topic = Find<TopicBrowser>(m_form, "txtTopic");
    QPalette dark = m_form.palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    dark.setColor(QPalette::Link, QColor(0, 0, 255));
    m_form.setPalette(dark);
    EXPECT_TRUE(topic->toHtml().contains("color:#f0f0f0"));
}

/// A modal window with a button, opened over the help or below it.
class Wizard : public QDialog
{
public:
    explicit Wizard(QWidget* parent) : QDialog(parent)
    {
        (new QPushButton(this))->setObjectName("cmdWizard");
        setModal(true);
        show();
    }
};

/// Whether a click of the mouse reaches a button, as the window system delivers it.
bool TakesClick(QWidget& window, const char* name)
{
    auto* button = Find<QPushButton>(window, name);
    bool isReached = false;
    const auto connection =
        QObject::connect(button, &QPushButton::clicked, [&] { isReached = true; });
    LetRun();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      button->mapTo(&window, button->rect().center()));
    QObject::disconnect(connection);
    return isReached;
}

TEST_F(HelpFormTest, HelpAndDialogsCanBeUsedSideBySide)
{
    QWidget main;
    main.show();
    Wizard wizard(&main);
    m_form.ShowTopic(0);
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "opened above a dialog";
    EXPECT_TRUE(TakesClick(wizard, "cmdWizard"));
    {
        const Wizard box(&wizard);
        EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "a second dialog came up later";
        EXPECT_FALSE(TakesClick(wizard, "cmdWizard")) << "the first dialog is still blocked";
    }
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "the second dialog is gone";
    wizard.hide();
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "no dialog is open any more";
    const Wizard next(&main);
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "the next wizard came up";
    const Wizard ofTheHelp(&m_form);
    EXPECT_FALSE(TakesClick(m_form, "cmdContents")) << "a dialog of the help itself";
}

TEST_F(HelpFormTest, TopicsShowTheirPictures)
{
    QFile picture(QLatin1String(":/help/road.svg"));
    ASSERT_TRUE(picture.open(QIODevice::ReadOnly));
    m_files.Contents[u"/program/help/road.svg"] = picture.readAll().toStdString();
    m_files.Contents[u"/program/orvane.hlp"] = "=== 0 Contents\n<p><img src=\"road.svg\"></p>";
    m_form.ShowTopic(0);
    const auto* document = Find<TopicBrowser>(m_form, "txtTopic")->document();
    const QVariant shown = document->resource(QTextDocument::ImageResource, QUrl("road.svg"));
    EXPECT_FALSE(shown.value<QImage>().isNull());
    for (const int width : {900, 320, 900}) {
        m_form.resize(width, 300);
        LetRun();
        EXPECT_EQ(Find<TopicBrowser>(m_form, "txtTopic")->horizontalScrollBar()->maximum(), 0)
            << width;
    }
}

TEST(DeliveredHelpFormTest, HasATopicForEveryWizardAndPromisesToReEditWhatOneTakesBack)
{
    QFile file(QLatin1String(":/help/orvane.hlp"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const HelpBook book = ReadHelpBook(file.readAll().toStdString(), FormDesk::ListEffectsOfTags());
    const HelpTopic* whatFor = FindTopic(book, 63);
    ASSERT_NE(whatFor, nullptr);
    for (const CatalogueRow& row : Catalogue()) {
        if (!row.HasButton)
            continue;
        SCOPED_TRACE(ToUtf8(row.Title));
        // Its own topic leads to one for each of its effects.
        const bool isSeveral = row.Kind == EffectKind::ImageEffects;
        const int number = isSeveral ? 13 : help_topics::firstEffect + static_cast<int>(row.Kind);
        const HelpTopic* topic = FindTopic(book, number);
        ASSERT_NE(topic, nullptr);
        for (const TextView part : {u"<img src=", u"<b>An example.</b>", u"<pre>", u"<b>For every"})
            EXPECT_GT(Find(topic->Body, part), 0u) << ToUtf8(part);
        EXPECT_GT(Find(whatFor->Body, Join({u"topic:", NumberToText(number), u"\""})), 0u);
    }
    const HelpTopic* topic = FindTopic(book, help_topics::editApplet);
    ASSERT_NE(topic, nullptr);
    EXPECT_GT(Find(topic->Body, u"<a href=\"topic:101\">Advanced Animator</a>"), 0u);
    EXPECT_EQ(Find(topic->Body, u"topic:104\">Digital Clock"), 0u);

    const QRegularExpression name(QStringLiteral("src=\"([^\"]*)\"|topic:([0-9]+)"));
    for (const HelpTopic& each : book) {
        for (auto hits = name.globalMatch(ToQt(each.Body)); hits.hasNext();) {
            const QRegularExpressionMatch hit = hits.next();
            EXPECT_TRUE(FindTopic(book, hit.captured(2).toInt()) &&
                        (QFile::exists(QStringLiteral(":/help/") + hit.captured(1)) ||
                         QFile::exists(SharedFolder(QStringLiteral("help/")) + hit.captured(1))))
                << hit.captured().toStdString() << " in " << ToUtf8(each.Title);
        }
    }
}

} // namespace
} // namespace orvane::testing
