#include "help/help_form.h"

#include "help/qt_topic_browser.h"
#include "program/form_desk.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QVBoxLayout>
#include <QWindow>

namespace orvane {
namespace {

using namespace orvane::testing;

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

    std::vector<std::string> Listed()
    {
        std::vector<std::string> titles;
        const auto* list = Find<QListWidget>(m_form, "lstContents");
        for (int row = 0; row < list->count(); ++row)
            titles.push_back(list->item(row)->text().toStdString());
        return titles;
    }

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

TEST_F(HelpFormTest, ShowsTheTopicAndMarksItInTheContents)
{
    EXPECT_TRUE(m_files.Reads.empty());
    m_form.ShowTopic(7);
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_EQ(Shown(), "A <B>\nSeven");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"Contents", "A <B>", "Ticker"}));
    EXPECT_EQ(Marked(), "A <B>");
    ExpectAccessible(m_form);
}

TEST_F(HelpFormTest, ANumberWithoutTopicOffersTheContents)
{
    m_form.ShowTopic(8);
    EXPECT_TRUE(Shown().starts_with("There is no help for this"));
    EXPECT_EQ(Marked(), "");
    FollowLink("topic:0");
    EXPECT_EQ(Marked(), "Contents");
}

TEST_F(HelpFormTest, ABookThatCannotBeReadSaysSo)
{
    m_files.FailOn(u"/program/orvane.hlp", Fault::PermissionDenied);
    m_form.ShowTopic(7);
    EXPECT_TRUE(Shown().starts_with("The help cannot be shown"));
}

TEST_F(HelpFormTest, WalksBackAndForwardThroughTheTopicsRead)
{
    m_form.ShowTopic(0);
    EXPECT_FALSE(IsEnabled("cmdBack"));
    FollowLink("topic:7");
    Find<QListWidget>(m_form, "lstContents")->setCurrentRow(2);
    EXPECT_EQ(Shown(), "Ticker\nNine");
    Click(m_form, "cmdBack");
    EXPECT_EQ(Marked(), "A <B>");
    Click(m_form, "cmdBack");
    EXPECT_EQ(Marked(), "Contents");
    EXPECT_FALSE(IsEnabled("cmdBack"));
    Click(m_form, "cmdForward");
    EXPECT_EQ(Shown(), "A <B>\nSeven");
    EXPECT_EQ(Marked(), "A <B>");
    Click(m_form, "cmdContents");
    EXPECT_EQ(Marked(), "Contents");
    EXPECT_FALSE(IsEnabled("cmdForward"));
}

TEST_F(HelpFormTest, SearchListsTheHitsAndEnterOpensTheFirst)
{
    m_form.ShowTopic(0);
    Type(m_form, "txtSearch", u"NINE");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"Ticker"}));
    EXPECT_EQ(Marked(), "");
    Press(*Find<QLineEdit>(m_form, "txtSearch"), Qt::Key_Return);
    EXPECT_EQ(Shown(), "Ticker\nNine");
    EXPECT_TRUE(m_form.isVisible());

    Type(m_form, "txtSearch", u" moon");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"Nothing found"}));
    Press(*Find<QLineEdit>(m_form, "txtSearch"), Qt::Key_Return);
    EXPECT_EQ(Shown(), "Ticker\nNine");

    Click(m_form, "cmdContents");
    EXPECT_EQ(Listed().size(), 3u);
    EXPECT_EQ(Marked(), "Contents");
}

TEST_F(HelpFormTest, LinksToTheWebAreHandedToTheDesktop)
{
    m_form.ShowTopic(7);
    FollowLink("http://www.varlo.example/orvane/");
    EXPECT_EQ(m_shell.Opened, std::vector<Text>{u"http://www.varlo.example/orvane/"});
    FollowLink("file:///etc/passwd");
    EXPECT_EQ(m_shell.Opened.size(), 1u);
    EXPECT_EQ(Shown(), "A <B>\nSeven");
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
    dark.setColor(QPalette::Link, QColor(120, 180, 255));
    m_form.setPalette(dark);
    EXPECT_TRUE(topic->toHtml().contains("color:#78b4ff"));
}

/// A modal window with a button, opened over the help or below it.
class Wizard : public QDialog
{
public:
    explicit Wizard(QWidget* parent) : QDialog(parent)
    {
        setModal(true);
        auto* lines = new QVBoxLayout(this);
        auto* button = new QPushButton;
        button->setObjectName("cmdWizard");
        lines->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this] { ++Clicks; });
    }
    int Clicks = 0;
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
    wizard.show();
    m_form.ShowTopic(0);
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "opened above a dialog";
    EXPECT_TRUE(TakesClick(wizard, "cmdWizard"));
    {
        Wizard box(&wizard);
        box.show();
        EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "a second dialog came up later";
        EXPECT_TRUE(TakesClick(box, "cmdWizard"));
        EXPECT_FALSE(TakesClick(wizard, "cmdWizard")) << "the first dialog is still blocked";
    }
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "the second dialog is gone";
    wizard.hide();
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "no dialog is open any more";
    Wizard next(&main);
    next.show();
    EXPECT_TRUE(TakesClick(m_form, "cmdContents")) << "the next wizard came up";
    EXPECT_EQ(wizard.Clicks, 1);
}

TEST_F(HelpFormTest, ADialogOfTheHelpItselfBlocksIt)
{
    m_form.ShowTopic(0);
    Wizard box(&m_form);
    box.show();
    EXPECT_FALSE(TakesClick(m_form, "cmdContents"));
    EXPECT_TRUE(TakesClick(box, "cmdWizard"));
}

/// The help that is delivered, as the program installs it.
class DeliveredHelpFormTest : public HelpFormTest
{
protected:
    DeliveredHelpFormTest()
    {
        const QDir folder(QLatin1String(":/help"));
        for (const QString& name : folder.entryList()) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            const bool isBook = name == "orvane.hlp";
            m_files.Contents[FromQt((isBook ? "/program/" : "/program/help/") + name)] =
                file.readAll().toStdString();
        }
        m_book = ReadHelpBook(m_files.Contents[u"/program/orvane.hlp"]);
    }
    HelpBook m_book;
};

TEST_F(DeliveredHelpFormTest, ShowsEveryTopicWithItsPictures)
{
    ASSERT_FALSE(m_book.empty());
    for (const HelpTopic& topic : m_book) {
        m_form.ShowTopic(topic.Number);
        EXPECT_EQ(Marked(), ToUtf8(topic.Title));
        const auto* document = Find<TopicBrowser>(m_form, "txtTopic")->document();
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextImageFormat image = part.fragment().charFormat().toImageFormat();
                if (!image.isValid())
                    continue;
                const QVariant picture =
                    document->resource(QTextDocument::ImageResource, QUrl(image.name()));
                EXPECT_FALSE(picture.value<QImage>().isNull()) << image.name().toStdString();
            }
    }
}

TEST_F(DeliveredHelpFormTest, HasATopicForEveryWizard)
{
    for (const CatalogueRow& row : Catalogue()) {
        const int topic = help_topics::firstEffect + static_cast<int>(row.Kind);
        EXPECT_TRUE(FindTopic(m_book, topic) || !row.HasButton || !FormDesk::IsBuilt(row.Kind))
            << ToUtf8(row.Title);
    }
}

} // namespace
} // namespace orvane
