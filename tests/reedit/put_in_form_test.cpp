#include "reedit/put_in_form.h"

#include "core/effect_markers.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QListWidget>
#include <QRadioButton>
#include <QTest>

#include <tuple>

namespace orvane::testing {
namespace {

const Text path = u"/site/a.html";

TEST(PutInFormTest, PutsAnEffectBeforeOrBehindThePartOfTheListOrOfTheClick)
{
    FakeDesk desk;
    std::string& bytes = desk.Files.Contents[path];
    const EffectMarkers markers = MarkersOf(u"Slideshow");
    bytes = "<html><head></head>\r\n<body onload='mine()'>\r\n<h1>Hel<b>lo</b><br>you</h1>\r\n"
            "<img src=a.gif>\r\n" +
            ToBytes(Join({markers.Begin, u"\r\n<img src=b.gif>", markers.End})) + "</body></html>";
    PageEffects host(desk.Files, desk.Dialogs, BackupsPlaceIn(u"/state", u"2024-05-31"));
    host.GoTo(path);
    const EffectPayload effect{.Kind = EffectKind::VerticalScroller,
                               .HEADHTML = u"<SCRIPT>function go(n) {}</SCRIPT>\r\n",
                               .BODYHTML = u"<b>new</b>\r\n",
                               .OnLoadFunc = u"go",
                               .OnLoadArgs = u"(1)"};
    PutInForm form(desk.Bench, host, {Finish(effect), host.Bytes()}, nullptr);
    form.show();
    form.resize(1000, 600);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    ExpectAccessible(form);
    EXPECT_EQ(
        RowsOf(form, "lstPlaces"),
        (Texts{u"At the top of the page", u"Line 3, heading: Hello you", u"Line 4, picture: a.gif",
               u"Line 5, special effect Slideshow", u"At the end of the page"}));
    EXPECT_FALSE(Find<QWidget>(form, "optPlace(0)")->isEnabled());
    auto* list = Find<QListWidget>(form, "lstPlaces");
    EXPECT_EQ(form.focusWidget(), list);
    auto* cmdPutIn = Find<QWidget>(form, "cmdPutIn");
    const auto shownAt = [&](const char* text) { return desk.Pane.Live.back().Bytes->find(text); };
    Press(*list, Qt::Key_Down);
    EXPECT_LT(shownAt("outline:"), shownAt("<h1"));
    Find<QRadioButton>(form, "optPlace(1)")->click();
    EXPECT_LT(shownAt("</h1>"), shownAt("outline:"));
    EXPECT_LT(shownAt("outline:"), shownAt("a.gif"));
    EXPECT_TRUE(desk.Pane.Live.back().ScrollsToMark);
    // The pane tells where the author clicks, by the numbers in the page that it shows.
    EXPECT_TRUE(desk.Pane.Live.back().TakesPointing);
    EXPECT_NE(shownAt("<img data-orvane-part=\"1\" src=a.gif>"), std::string::npos);
    const std::tuple<PointedPlace, int, const char*, const char*> clicks[] = {
        {{std::nullopt, true}, 4, "b.gif", "outline:"},
        {{1, false}, 2, "</h1>", "outline:"},
        {{std::nullopt, false}, 0, "outline:", "<h1"},
        {{1, true}, 2, "a.gif", "outline:"},
        {{3, true}, 2, "a.gif", "outline:"},
        {{0, true}, 1, "</h1>", "outline:"},
    };
    for (const auto& [click, row, first, second] : clicks) {
        cmdPutIn->setFocus();
        desk.Pane.Pointed(click);
        EXPECT_EQ(list->currentRow(), row);
        EXPECT_LT(shownAt(first), shownAt(second));
        EXPECT_FALSE(desk.Pane.Live.back().ScrollsToMark);
    }
    EXPECT_TRUE(Find<QRadioButton>(form, "optPlace(1)")->isChecked());
    Press(*list, Qt::Key_Return);
    EXPECT_EQ(form.End(), PutInEnd::Written);
    EXPECT_EQ(bytes.find("outline:"), std::string::npos);
    EXPECT_EQ(bytes.find("data-orvane-part"), std::string::npos);
    EXPECT_LT(bytes.find("</h1>"), bytes.find("<b>new"));
    EXPECT_LT(bytes.find("<b>new"), bytes.find("<img src=a.gif>\r\n<!--"));
    EXPECT_NE(bytes.find("onload='go(1);mine()'"), std::string::npos);
}

} // namespace
} // namespace orvane::testing
