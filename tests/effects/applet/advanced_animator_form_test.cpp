#include "effects/applet/advanced_animator_form.h"

#include "effects/applet/animation_project.h"
#include "effects/applet/img_props_form.h"
#include "program/form_desk.h"
#include "services/recent_files.h"
#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

namespace orvane::testing {
namespace {

class AdvancedAnimatorFormTest : public ::testing::Test
{
protected:
    AdvancedAnimatorFormTest()
    {
        m_desk.Files.Folders = {u"/", u"/pics"};
        for (const TextView name : {u"a.gif", u"b.gif", u"c.jpg"})
            m_desk.Files.Contents[Join({u"/pics/", name})] = "no picture";
        m_desk.Core.DefaultPath = u"/pics";
    }

    AdvancedAnimatorForm& Form()
    {
        if (!m_form) {
            m_form = std::make_unique<AdvancedAnimatorForm>(m_desk.Bench);
            m_form->show();
        }
        return *m_form;
    }

    void AddImage(int row)
    {
        Find<QListWidget>(Form(), "File1")->setCurrentRow(row);
        Click(Form(), "cmdAddToImageList");
    }

    void Choose(const char* command) { Form().findChild<QAction*>(command)->trigger(); }

    /// Double clicks a row of a list and gives the window that comes.
    ImgPropsForm* OpenProperties(const char* list, int row)
    {
        auto* images = Find<QListWidget>(Form(), list);
        images->setCurrentRow(row);
        Press(*images, Qt::Key_Return);
        return Form().findChild<ImgPropsForm*>();
    }

    FakeDesk m_desk;
    std::unique_ptr<AdvancedAnimatorForm> m_form;
};

TEST_F(AdvancedAnimatorFormTest, PropertiesGoIntoTheSelectedRow)
{
    EXPECT_FALSE(Find<QPushButton>(Form(), "SetPropsButton")->isEnabled());
    Choose("mnuSetProperties");
    EXPECT_EQ(Form().findChild<ImgPropsForm*>(), nullptr);
    AddImage(0);
    AddImage(1);
    EXPECT_TRUE(Find<QPushButton>(Form(), "SetPropsButton")->isEnabled());

    ImgPropsForm* properties = OpenProperties("List5", 1);
    ASSERT_NE(properties, nullptr);
    Type(*properties, "Text2", u"WWW.example.com");
    Find<QComboBox>(*properties, "Combo3")->setEditText(QStringLiteral("squish"));
    Type(*properties, "Combo1", u"6");
    Click(*properties, "cmdOK");
    const ImageRow expected{.FileName = u"b.gif",
                            .Pause = u"100",
                            .Transition = u"squish(6)",
                            .URL = u"http://WWW.example.com"};
    EXPECT_EQ(Form().Parameters().Rows.at(1), expected);
    EXPECT_EQ(Find<QListWidget>(Form(), "List4")->item(1)->text(), QStringLiteral("squish(6)"));
    EXPECT_EQ(Find<QListWidget>(Form(), "List1")->currentRow(), 1);

    LetRun();
    Click(Form(), "SetPropsButton");
    properties = Form().findChild<ImgPropsForm*>();
    ASSERT_NE(properties, nullptr);
    Type(*properties, "Text2", u"x");
    Press(*properties, Qt::Key_Escape);
    EXPECT_EQ(Form().Parameters().Rows.at(1), expected);
}

TEST_F(AdvancedAnimatorFormTest, ProjectsAreSavedOpenedAndBegunAnewAndTheTitleTellsWhich)
{
    const auto title = [this] {
        return FromQt(Form().windowTitle()) + (Form().isWindowModified() ? u" changed" : u"");
    };
    const auto save = [this] {
        m_desk.Dialogs.AnswerSaveFile(u"/film.ovn");
        Choose("mnuFileSave");
    };
    EXPECT_EQ(title(), u"Advanced Animation Wizard[*]");
    Choose("mnuFileSave");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(),
              Texts{u"You must enter an image into the Animation Image List."});
    AddImage(0);
    EXPECT_EQ(title(), u"Advanced Animation Wizard[*] changed");
    Type(Form(), "Text20", u"1");
    Type(Form(), "Text21", u"2");
    save();
    EXPECT_EQ(title(), u"Advanced Animation Wizard - film.ovn[*]");
    EXPECT_EQ(WordsOf(Form(), "lblNote"), u"Saved");
    const AdvancedAnimator saved = Form().Parameters();
    EXPECT_EQ(m_desk.Files.Contents[u"/film.ovn"], ProjectBytes(saved));
    m_desk.Files.FailOn(u"/film.ovn", Fault::PermissionDenied);
    Find<QComboBox>(Form(), "Combo3")->setEditText(QStringLiteral("3 times"));
    save();
    Choose("mnuFileSaveProject");
    EXPECT_EQ(title(), u"Advanced Animation Wizard - film.ovn[*] changed");
    EXPECT_EQ(m_desk.Files.Writes.size(), 3u);

    for (const std::optional<bool> answer : {std::optional<bool>(), {false}, {true}}) {
        m_desk.Dialogs.ExpectAskOrCancel(u"Do you want to start a new animation?", answer);
        Choose("mnuFileNew");
        EXPECT_EQ(Form().Parameters().AnimationWidth, answer == true ? u"" : u"1");
    }
    EXPECT_EQ(m_desk.Dialogs.Titles.back(), u"Advanced Animation Wizard");
    // The picture of this run is delivered, whatever project is open.
    const RequiredFiles required{.RequiredFileNames = {u"a.gif"},
                                 .RequiredFileSources = {u"/pics/a.gif"},
                                 .RequiredFileCount = 1};
    EXPECT_EQ(Form().Parameters(),
              (AdvancedAnimator{.LoopCount = u"3 times", .Required = required}));

    m_desk.Files.Contents[u"/other.ovn"] = ProjectBytes(saved);
    AdvancedAnimator opened = ReadProject(ProjectBytes(saved));
    opened.Required = required;
    for (const std::optional<Text>& answer : {std::optional<Text>(u"/other.ovn"), {}}) {
        m_desk.Dialogs.AnswerOpenFile(answer);
        Choose("mnuFileOpen");
        EXPECT_EQ(Form().Parameters(), opened);
        opened.Rows.clear();
    }

    Choose("mnuFileReturnToMainMenu");
    EXPECT_FALSE(Form().isVisible());
    EXPECT_EQ(Form().TakePayload(), std::nullopt);
}

TEST_F(AdvancedAnimatorFormTest, OpensWithTheProjectThatTheProgramWasStartedWith)
{
    FormDesk road(m_desk.Bench, nullptr);
    road.OpenFile(u"/film.ovn");
    EXPECT_EQ(m_desk.Dialogs.TakeSaid(), Texts{u"Orvane cannot find the file /film.ovn."});

    m_desk.Files.Contents[u"/film.ovn"] = ExpectedBytes("animator_project_two_images.ovn");
    Text image;
    WhenInFront<AdvancedAnimatorForm>([&](AdvancedAnimatorForm& wizard) {
        image = wizard.Parameters().Rows.at(1).FileName;
        wizard.reject();
    });
    road.OpenFile(u"/film.ovn");
    EXPECT_EQ(image, u"b.gif");
}

TEST_F(AdvancedAnimatorFormTest, RecentProjectsThatAreThereOpenFromTheMenu)
{
    const auto entries = [this] {
        auto* menu = Form().findChild<QMenu*>("mnuFileRecent");
        emit menu->aboutToShow();
        return menu->actions();
    };
    EXPECT_FALSE(entries().at(0)->isEnabled());
    m_desk.Files.Contents[u"/R&B.ovn"] = "\"5\",\"6\",\"NULL\",\"\",\"a.gif\"";
    m_desk.Files.Contents[u"/1"] = "the eleventh";
    for (const TextView path : {u"/1", u"/2", u"/3", u"/4", u"/5", u"/6", u"/7", u"/8", u"/R&B.ovn",
                                u"/gone.ovn", u"/film.ovn", u"/film.ovn\n/R&B.ovn"})
        PutRecentFile(m_desk.Settings, u"Projects", path);
    m_desk.Files.Contents[u"/film.ovn"] = "";
    ASSERT_EQ(entries().size(), 2);
    EXPECT_EQ(entries().at(1)->text(), QStringLiteral("&2 /R&&B.ovn"));
    entries().at(1)->trigger();
    EXPECT_EQ(Form().Parameters().AnimationWidth, u"5");
    EXPECT_EQ(entries().at(0)->text(), QStringLiteral("&1 /R&&B.ovn"));
    EXPECT_FALSE(Form().isWindowModified());
}

} // namespace
} // namespace orvane::testing
