#include "services/font_fields.h"

#include "tests/support/doubles.h"

namespace orvane {
namespace {

using testing::FakeDialogs;

struct StyleCase
{
    TextView Style;
    bool Bold;
    bool Italic;
};

class FontStyleTest : public ::testing::TestWithParam<StyleCase>
{
};

TEST_P(FontStyleTest, GoesIntoTheFontDialogAndComesOut)
{
    const auto& [style, isBold, isItalic] = GetParam();
    FakeDialogs dialogs;
    dialogs.AnswerFont({u"Serif", u"9", isBold, isItalic});
    const FontFields picked = PickFontFields(dialogs, {u"Arial", u"12", Text(style)});
    EXPECT_EQ(dialogs.FontStarts, (std::vector<FontChoice>{{u"Arial", u"12", isBold, isItalic}}));
    EXPECT_EQ(picked, (FontFields{u"Serif", u"9", Text(style)}));
}

INSTANTIATE_TEST_SUITE_P(Styles, FontStyleTest,
                         ::testing::Values(StyleCase{u"Normal", false, false},
                                           StyleCase{u"Bold", true, false},
                                           StyleCase{u"Italic", false, true},
                                           StyleCase{u"Bold Italic", true, true}));

TEST(FontFieldsTest, CancelLeavesEvenAStyleThatTheDialogDoesNotKnow)
{
    const FontFields odd{u"Any font", u"large", u"oblique"};
    FakeDialogs dialogs;
    dialogs.AnswerFont({odd.Font, odd.Size, false, false});
    EXPECT_EQ(PickFontFields(dialogs, odd), odd);
}

} // namespace
} // namespace orvane
