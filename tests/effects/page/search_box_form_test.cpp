#include "effects/page/search_box_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

namespace orvane::testing {
namespace {

TEST(SearchBoxFormTest, TranslatesInTheOtherMode)
{
    FakeDesk desk;
    SearchBoxForm form(desk.Bench, nullptr, EffectKind::Translator);
    form.show();
    ExpectAccessible(form);
    Click(form, "cmdClickHereForHelp");
    EXPECT_EQ(desk.Help.Shown, std::vector<int>{140});
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Web Page Translator"));
    EXPECT_EQ(WordsOf(form, "lblHeading"), u"Web Page Translator");
    Click(form, "cmdDone");
    EXPECT_EQ(desk.Dialogs.Said.size(), 1u);
    form.hide();
    form.show();
    EXPECT_FALSE(Find<QLineEdit>(form, "txtTranslateURL")->hasSelectedText());
    Type(form, "txtTranslateURL", u"a.example");
    Click(form, "cmdDone");
    const auto payload = form.TakePayload();
    ASSERT_TRUE(payload);
    EXPECT_EQ(payload,
              Generate({.Mode = Text(translateMode), .txtTranslateURL = u"http://a.example"},
                       SurroundingsOf(desk.Bench)));
    EXPECT_EQ(payload->Required.RequiredFileSources[0], u"/program/GoogleLogo.gif");
}

} // namespace
} // namespace orvane::testing
