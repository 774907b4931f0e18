#include "core/template.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

constexpr Template twoLines(uR"page(
first «A»
«B»
)page");
constexpr Template noLineEnd(uR"page(«A»«A»x)page");
constexpr Template nothing(uR"page()page");
constexpr Template plain(u"a\n\nb");

TEST(TemplateTest, EndsEachSourceLineInCrLfAndDropsTheFirst)
{
    EXPECT_EQ(Fill(twoLines, {{u"A", u"1"}, {u"B", u"2"}}), u"first 1\r\n2\r\n");
    EXPECT_EQ(Fill(plain), u"a\r\n\r\nb");
    EXPECT_EQ(Fill(nothing), u"");
}

TEST(TemplateTest, PutsAValueInAsOftenAsItsMarkStands)
{
    EXPECT_EQ(Fill(noLineEnd, {{u"A", u"ab"}}), u"ababx");
}

TEST(TemplateTest, NeverLooksAtAValueAgain)
{
    EXPECT_EQ(Fill(twoLines, {{u"A", u"«B»"}, {u"B", u"a\nb"}}), u"first «B»\r\na\nb\r\n");
}

TEST(TemplateTest, ThrowsWhenMarksAndValuesDoNotMatch)
{
    EXPECT_THROW(Fill(twoLines, {{u"A", u"1"}}), std::logic_error);
    EXPECT_THROW(Fill(noLineEnd, {{u"A", u"1"}, {u"B", u"2"}}), std::logic_error);
    EXPECT_THROW(Fill(plain, {{u"A", u"1"}}), std::logic_error);
}

} // namespace
} // namespace orvane::testing
