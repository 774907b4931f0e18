#include "reedit/edit_applet_form.h"

#include "effects/applet/advanced_animator_form.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/multi_line_box.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>

namespace orvane::testing {
namespace {

void Paste(EditAppletForm& form, const char* tag)
{
    QApplication::clipboard()->setText(QString::fromUtf8(tag));
    Find<MultiLineBox>(form, "Text1")->paste();
}

class EditAppletFormTest : public ::testing::Test
{
protected:
    EditAppletFormTest() { m_form.show(); }

    void Edit(const char* tag)
    {
        Paste(m_form, tag);
        Click(m_form, "cmdEdit");
    }

    FakeDesk m_desk;
    EditAppletForm m_form{m_desk.Bench};
};

TEST_F(EditAppletFormTest, AKnownAppletClosesTheWindowWithItsEffect)
{
    Edit("<APPLET CODE=\"Typewriter9.class\"\n ALT=\"a\u00A0b\u2028c\">");
    EXPECT_FALSE(m_form.isVisible());
    ASSERT_TRUE(m_form.Wanted());
    EXPECT_EQ(m_form.Wanted()->Kind, EffectKind::TypewriterText);
    EXPECT_EQ(m_form.Wanted()->Tag.Whole,
              u"<APPLET CODE=\"Typewriter9.class\"\r\n ALT=\"a\u00A0b\u2028c\">");
    EXPECT_TRUE(m_desk.Core.EditMode);
    EXPECT_EQ(m_desk.Core.AppletTextAfterCODE, u"\"Type");
    EXPECT_EQ(m_desk.Core.AppletText, u"\"Typewri");
}

TEST_F(EditAppletFormTest, AnUnknownTagIsRefused)
{
    Edit("<applet code=\"Animate1.class\">");
    EXPECT_FALSE(m_form.isVisible());
    EXPECT_FALSE(m_form.Wanted());
    EXPECT_EQ(m_desk.Dialogs.Said,
              Texts{u"Orvane does not recognize this special effect.  It cannot re-edit the Status "
                    u"bar scrolling text special effect or the Fading background color special "
                    u"effect."});
    EXPECT_TRUE(m_desk.Core.EditMode);
}

TEST_F(EditAppletFormTest, AnAnimationAsksForItsWizard)
{
    LetRun();
    ExpectAccessible(m_form);
    EXPECT_EQ(m_form.windowTitle(), QStringLiteral("Edit Applet"));
    Click(m_form, "cmdClickHereForHelp");
    EXPECT_EQ(m_desk.Help.Shown, std::vector<int>{12});
    Edit("<APPLET CODE=AnimatePLUS28>");
    LetRun();
    ExpectAccessible(m_form);
    EXPECT_TRUE(m_form.isVisible());
    EXPECT_FALSE(m_form.Wanted());
    Click(m_form, "optBillboardWizard");
    Press(m_form, Qt::Key_Return);
    EXPECT_EQ(m_form.Wanted()->Kind, EffectKind::BannerWizard);
    EXPECT_FALSE(m_form.isVisible());
}

TEST_F(EditAppletFormTest, ATagThatIsTooLargeIsRefused)
{
    Paste(m_form, std::string(5 * 1024 * 1024, 'x').c_str());
    EXPECT_EQ(m_desk.Dialogs.Said,
              Texts{u"The pasted text is larger than 4 MB.  Please paste the code of the applet "
                    u"alone, from the \"<APPLET>\" tag to the \"</APPLET>\" tag."});
    EXPECT_EQ(WordsOf(m_form, "Text1"), u"");
}

TEST(EditAppletRoadTest, LeadsFromThePastedTagToTheFilledWizard)
{
    FakeDesk desk;
    FormDesk road(desk.Bench, nullptr);
    road.Start();
    bool wasFilled = false;
    WhenInFront<EditAppletForm>([&](EditAppletForm& form) {
        Paste(form, "<APPLET CODE=Animate1.class WIDTH=\"20\">");
        Click(form, "cmdEdit");
        WhenInFront<AdvancedAnimatorForm>([&](AdvancedAnimatorForm& wizard) {
            wasFilled = wizard.Parameters().AnimationWidth == u"\"20";
            EXPECT_FALSE(desk.Core.EditMode);
            wizard.reject();
        });
        Click(form, "cmdEdit");
    });
    road.MainForm()->findChild<QAction*>(QStringLiteral("mnuEditApplet"))->trigger();
    EXPECT_TRUE(wasFilled);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(EditAppletRoadTest, AnAppletWithoutAWizardOpensNothing)
{
    FakeDesk desk;
    FormDesk road(desk.Bench, nullptr);
    road.Start();
    WhenInFront<EditAppletForm>([&](EditAppletForm& form) {
        Paste(form, "CODE=Clock.class");
        Click(form, "cmdEdit");
    });
    road.EditApplet();
    EXPECT_TRUE(desk.Dialogs.Said.empty());

    // The next wizard that reads tags finds an empty one.
    bool wasFresh = true;
    WhenInFront<AdvancedAnimatorForm>([&](AdvancedAnimatorForm& wizard) {
        wasFresh = wizard.Parameters() == AdvancedAnimator();
        wizard.reject();
    });
    EXPECT_TRUE(desk.Core.EditMode);
    road.OpenEffect(EffectKind::AdvancedAnimator);
    EXPECT_FALSE(desk.Core.EditMode);
}

} // namespace
} // namespace orvane::testing
