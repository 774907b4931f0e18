#include "services/font_fields.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

TEST(FontFieldsTest, StyleGoesIntoTheFontDialogAndComesOut)
{
    for (const auto& [style, isBold, isItalic] :
         {std::tuple(u"Normal", false, false), {u"Bold", true, false}, {u"Italic", false, true}}) {
        FakeDialogs dialogs;
        dialogs.AnswerFont({u"Serif", u"9", isBold, isItalic});
        const FontFields picked = PickFontFields(dialogs, {u"Arial", u"12", Text(style)});
        EXPECT_EQ(dialogs.FontStarts,
                  (std::vector<FontChoice>{{u"Arial", u"12", isBold, isItalic}}));
        EXPECT_EQ(picked, (FontFields{u"Serif", u"9", Text(style)}));
    }
}

TEST(FontFieldsTest, CancelLeavesEvenAStyleThatTheDialogDoesNotKnow)
{
    const FontFields odd{u"Any font", u"large", u"oblique"};
    FakeDialogs dialogs;
    dialogs.AnswerFont({odd.Font, odd.Size, false, false});
    EXPECT_EQ(PickFontFields(dialogs, odd), odd);
}

} // namespace
} // namespace orvane::testing
