#include "reedit/taking_out.h"

#include "tests/fuzz/taking_out_checks.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(TakingOutTest, UndoesInsertionsInEveryPageOfFourTokens)
{
    EXPECT_EQ(CheckAllPages(4), 41370);
}

} // namespace
} // namespace orvane::testing
