#include "effects/applet/img_props_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace orvane::testing {
namespace {

class ImgPropsFormTest : public ::testing::Test
{
protected:
    ImgPropsForm& Open(const ImageRow& row)
    {
        m_form = std::make_unique<ImgPropsForm>(m_desk.Bench, m_files, row);
        m_form->show();
        m_form->activateWindow();
        return *m_form;
    }

    QComboBox& Box(const char* name) { return *Find<QComboBox>(*m_form, name); }

    FakeDesk m_desk;
    RequiredFiles m_files;
    std::unique_ptr<ImgPropsForm> m_form;
};

TEST_F(ImgPropsFormTest, ShowsTheRowAndLeavesItUnderOK)
{
    const ImageRow row{u"a.gif", u"-1", u"scroll(4)", u"u.html", u"s.au"};
    Open(row);
    EXPECT_FALSE(Find<QCheckBox>(*m_form, "Check1")->isChecked());
    EXPECT_EQ(WordsOf(*m_form, "Text3"), u"s.au");
    EXPECT_EQ(WordsOf(*m_form, "Combo3"), u"scroll");
    EXPECT_EQ(WordsOf(*m_form, "Combo1"), u"4");
    EXPECT_EQ(WordsOf(*m_form, "lblDirection"), u"Scroll In from:");
    EXPECT_EQ(Box("Combo1").count(), 4);
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_form->Row(), row);
}

TEST_F(ImgPropsFormTest, ChoosingATransitionRefillsTheDirections)
{
    Open({.FileName = u"a.gif", .Transition = u"scroll(4)"});
    emit Box("Combo3").textActivated(QStringLiteral("scroll"));
    EXPECT_EQ(Box("Combo1").count(), 5);
    EXPECT_EQ(WordsOf(*m_form, "Combo1"), u"");
    Box("Combo3").setCurrentText(QStringLiteral("shutter"));
    EXPECT_FALSE(Box("Combo1").isEnabled());
    EXPECT_EQ(Box("Combo1").count(), 0);
    EXPECT_EQ(WordsOf(*m_form, "lblDirection"), u"Direction:");
    EXPECT_EQ(WordsOf(*m_form, "lblDescription"),
              u"Causes the border of the image frame to close over the old image completely then "
              u"open up, revealing the next image.");
    LetRun();
    ExpectAccessible(*m_form);
    Box("Combo3").setCurrentText(QStringLiteral("slideout"));
    EXPECT_TRUE(Box("Combo1").isEnabled());
    Box("Combo1").setCurrentIndex(8);
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_form->Row().Transition, u"slideout(r)");
}

TEST_F(ImgPropsFormTest, WaitingForAClickFillsAndLocksThePause)
{
    Open({.FileName = u"a.gif", .Pause = u"250"});
    Click(*m_form, "Check1");
    EXPECT_EQ(WordsOf(*m_form, "Text1"), u"-1");
    EXPECT_FALSE(Find<QLineEdit>(*m_form, "Text1")->isEnabled());
    Click(*m_form, "Check1");
    EXPECT_EQ(WordsOf(*m_form, "Text1"), u"");
    Type(*m_form, "Text1", u"-3");
    Press(*m_form, Qt::Key_Return);
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    EXPECT_EQ(m_form->focusWidget()->objectName(), QStringLiteral("Text1"));
    Click(*m_form, "Check1");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_form->Row().Pause, u"-1");
}

TEST_F(ImgPropsFormTest, ABrowsedSoundIsRecordedEvenIfTheWindowIsCancelled)
{
    m_files.RequiredFileCount = 2;
    Open({.FileName = u"a.gif"});
    m_desk.Dialogs.AnswerOpenFile(u"/my sounds/ding.au");
    Click(*m_form, "Command8");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).Filter, u"All Files (*.*)|*.*|AU Files (*.au)|*.au");
    EXPECT_EQ(m_desk.Dialogs.Requests.at(0).FilterIndex, 2);
    m_desk.Dialogs.AnswerOpenFile(u"/my ding.au");
    Click(*m_form, "Command8");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              Texts{u"This special effect does not allow sound filenames containing "
                    u"space characters.\r\n"
                    u"Please rename the sound or select another sound.\r\nmy ding.au"});
    m_desk.Dialogs.AnswerOpenFile(std::nullopt);
    Click(*m_form, "Command8");
    EXPECT_EQ(WordsOf(*m_form, "Text3"), u"ding.au");
    Click(*m_form, "cmdCancel");
    EXPECT_EQ(m_form->Row().Sound, u"");
    EXPECT_EQ(m_files.RequiredFileNames[2], u"ding.au");
    EXPECT_EQ(m_files.RequiredFileSources[2], u"/my sounds/ding.au");
    EXPECT_EQ(m_files.RequiredFileCount, 3);
}

TEST_F(ImgPropsFormTest, SoundIsLockedAndALinkedFileStandsUnderItsBareName)
{
    Open({.FileName = u"a.gif"});
    Type(*m_form, "Text3", u"x");
    EXPECT_EQ(m_desk.Dialogs.Said.size(), 1u);
    m_desk.Dialogs.AnswerOpenFile(u"/site/my page.html");
    Click(*m_form, "cmdBrowseURL");
    Click(*m_form, "cmdOK");
    EXPECT_EQ(m_form->Row(),
              (ImageRow{.FileName = u"a.gif", .Pause = u"100", .URL = u"my page.html"}));
}

} // namespace
} // namespace orvane::testing
