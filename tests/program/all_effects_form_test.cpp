#include "program/all_effects_form.h"

#include "effects/text/digital_clock_form.h"
#include "program/form_desk.h"
#include "program/ov_main_form.h"
#include "tests/support/form_test.h"
#include "windows/qt_text.h"
#include "windows/shared_folder.h"

#include <QTest>

namespace orvane::testing {
namespace {

TEST(AllEffectsFormTest, CtrlGShowsThemAtWorkAndANameOpensItsWizard)
{
    FakeDesk desk;
    const Text page = FromQt(SharedFolder(QStringLiteral("effects/index.html")));
    desk.Files.Contents[page] = "a <A HREF=\"#clock\">Clock</A> <A HREF=\"#fade\">Fade</A>";
    FormDesk road(desk.Bench, nullptr);
    road.Start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(road.MainForm()));
    bool wasOpened = false;
    WhenInFront<AllEffectsForm>([&](AllEffectsForm& all) {
        ExpectAccessible(all);
        EXPECT_EQ(*desk.Pane.Live.back().Bytes,
                  "a <A HREF=\"http://orvane.invalid/clock\">Clock</A> "
                  "<A HREF=\"http://orvane.invalid/fade\">Fade</A>");
        Click(all, "cmdShowInBrowser");
        EXPECT_EQ(desk.Shell.Opened, Texts{page});
        all.Follow(u"no effect");
        EXPECT_TRUE(all.isVisible());
        WhenInFront<DigitalClockForm>([&](DigitalClockForm& wizard) {
            wasOpened = true;
            wizard.reject();
        });
        all.Follow(u"clock");
    });
    QTest::keyClick(road.MainForm(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(wasOpened);
}

} // namespace
} // namespace orvane::testing
