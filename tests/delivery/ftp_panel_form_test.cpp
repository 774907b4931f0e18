#include "delivery/ftp_panel.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

namespace orvane {
namespace {

using namespace orvane::testing;

/// A panel over two servers that were used before, the newest being "ftp.b.example".
class FtpPanelTest : public ::testing::Test
{
protected:
    FtpPanelTest()
    {
        Store(u"Server1", u"ftp.b.example");
        Store(u"Username1", u"bob");
        Store(u"Server2", u"ftp.a.example");
        Store(u"Username2", u"ann");
        m_panel = std::make_unique<FtpPanel>(m_settings);
        m_panel->show();
    }

    void Store(TextView key, TextView value) { m_settings.Put(u"FTP", key, value, u"Orvane"); }
    Text Stored(TextView key) { return m_settings.Get(u"FTP", key, u"", u"Orvane"); }

    QComboBox& Servers() { return *Find<QComboBox>(*m_panel, "cmbServerName"); }
    Text Username() { return WordsOf(*m_panel, "Text3(0)"); }

    FakeSettings m_settings;
    std::unique_ptr<FtpPanel> m_panel;
};

TEST_F(FtpPanelTest, OpensWithTheNewestServerAndItsUser)
{
    EXPECT_EQ(Servers().count(), 2);
    EXPECT_EQ(WordsOf(*m_panel, "cmbServerName"), u"ftp.b.example");
    EXPECT_EQ(Username(), u"bob");
    EXPECT_EQ(Find<QLineEdit>(*m_panel, "Text3(1)")->echoMode(), QLineEdit::Password);
    ExpectAccessible(*m_panel);
}

TEST_F(FtpPanelTest, AServerBringsItsUser)
{
    Servers().setCurrentIndex(1);
    EXPECT_EQ(Username(), u"ann");
    Servers().setEditText(QStringLiteral("ftp.c.example"));
    EXPECT_EQ(Username(), u"ann") << "a server without a user leaves the field";
    Servers().setEditText(QStringLiteral("ftp.b.example"));
    EXPECT_EQ(Username(), u"bob");
}

TEST_F(FtpPanelTest, PickingTheSameServerAgainBringsItsUserBack)
{
    Type(*m_panel, "Text3(0)", u"x");
    ASSERT_NE(Username(), u"bob");
    Press(Servers(), Qt::Key_Down, Qt::AltModifier);
    QWidget* list = QApplication::activePopupWidget();
    ASSERT_NE(list, nullptr);
    Press(*list->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Username(), u"bob");
}

TEST_F(FtpPanelTest, KeepsANewServerInFrontOfTheOthers)
{
    Servers().setEditText(QStringLiteral("ftp.c.example"));
    auto* username = Find<QLineEdit>(*m_panel, "Text3(0)");
    username->clear();
    Type(*m_panel, "Text3(0)", u"carl");
    m_panel->PutRecentFTP();
    EXPECT_EQ(Stored(u"Server1"), u"ftp.c.example");
    EXPECT_EQ(Stored(u"Username1"), u"carl");
    EXPECT_EQ(Stored(u"Server3"), u"ftp.a.example");
    m_panel->GetRecentFTP();
    EXPECT_EQ(Servers().count(), 3);
    EXPECT_EQ(Username(), u"carl");
}

TEST_F(FtpPanelTest, AUserFieldSelectsItsTextWhenItIsEntered)
{
    auto* username = Find<QLineEdit>(*m_panel, "Text3(0)");
    LetRun();
    username->deselect();
    username->setFocus(Qt::MouseFocusReason);
    LetRun();
    EXPECT_EQ(username->selectedText(), QStringLiteral("bob"));
}

} // namespace
} // namespace orvane
