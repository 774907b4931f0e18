#include "core/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane::testing {
namespace {

struct NumberCase
{
    TextView Typed;
    double Leading;
    bool IsWholeNumber;
};

class NumbersTest : public ::testing::TestWithParam<NumberCase>
{
};

TEST_P(NumbersTest, ReadsTheLeadingNumberAndKnowsAWholeOne)
{
    EXPECT_EQ(Val(GetParam().Typed), GetParam().Leading);
    EXPECT_EQ(IsNumeric(GetParam().Typed), GetParam().IsWholeNumber);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, NumbersTest,
    ::testing::Values(NumberCase{u"", 0, false}, NumberCase{u"  12 ", 12, true},
                      NumberCase{u"1 2", 12, false}, NumberCase{u"\t\r\n7", 7, false},
                      NumberCase{u"-3.5px", -3.5, false}, NumberCase{u"+4", 4, true},
                      NumberCase{u".5", 0.5, true}, NumberCase{u"5.", 5, true},
                      NumberCase{u".", 0, false}, NumberCase{u"-", 0, false},
                      NumberCase{u"1e3", 1000, true}, NumberCase{u"1D2", 100, true},
                      NumberCase{u"1e", 1, false}, NumberCase{u"2E-1x", 0.2, false},
                      NumberCase{u"abc", 0, false}, NumberCase{u"1,000", 1, false},
                      NumberCase{u"(1)", 0, false}, NumberCase{u"$5", 0, false},
                      NumberCase{u"1.2.3", 1.2, false}, NumberCase{u"١", 0, false},
                      NumberCase{u"1e999", std::numeric_limits<double>::infinity(), true},
                      NumberCase{u"1e-999", 0, true}));

TEST(NumbersTest, RoundsHalvesToEvenAndTellsOverflowFromNoNumber)
{
    const auto number = [](TextView text) { return ValueIn(ToInteger16(text)); };
    EXPECT_EQ(number(u" 0.5 "), 0);
    EXPECT_EQ(number(u"1.5"), 2);
    EXPECT_EQ(number(u"-2.5"), -2);
    EXPECT_EQ(number(u"-3.5"), -4);
    EXPECT_EQ(number(u"2.5000001"), 3);
    EXPECT_EQ(number(u"32767.4"), 32767);
    EXPECT_EQ(number(u"-32768.5"), -32768);
    for (const TextView text : {u"32767.5", u"-32769", u"1e999", u"99999999999"})
        EXPECT_EQ(*FaultIn(ToInteger16(text)), Fault::Overflow) << ToUtf8(text);
    for (const TextView text : {u"", u" ", u"x", u"1x", u"1 2"})
        EXPECT_EQ(*FaultIn(ToInteger16(text)), Fault::TypeMismatch) << ToUtf8(text);
}

TEST(NumbersTest, StepsWithinItsBoundsAndFromZeroWhereNoNumberIs)
{
    EXPECT_EQ(StepNumber(u"2", 1, 0, 50), 3);
    EXPECT_EQ(StepNumber(u" 2.7px", -1, 0, 50), 1);
    EXPECT_EQ(StepNumber(u"none", 1, 0, 50), 1);
    EXPECT_EQ(StepNumber(u"", -1, 0, 50), 0);
    EXPECT_EQ(StepNumber(u"50", 1, 0, 50), 50);
    EXPECT_EQ(StepNumber(u"1e999", -1, 0, 50), 50);
    EXPECT_EQ(StepNumber(u"-8", 1, 0, 50), 0);
}

TEST(NumbersTest, WritesAtMostFifteenDigitsAndNoTrailingZeros)
{
    EXPECT_EQ(NumberToText(0.5), u"0.5");
    EXPECT_EQ(NumberToText(0.1 + 0.2), u"0.3");
    EXPECT_EQ(NumberToText(-120), u"-120");
    EXPECT_EQ(NumberToText(-0.0), u"0");
    EXPECT_EQ(NumberToText(123456789012345.0), u"123456789012345");
}

} // namespace
} // namespace orvane::testing
