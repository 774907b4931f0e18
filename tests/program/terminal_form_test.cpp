#include "program/terminal.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// What reaches the terminal when a library complains.
std::string Heard()
{
    ::testing::internal::CaptureStderr();
    QuietEngines();
    qWarning("chatter");
    qInstallMessageHandler(nullptr);
    return ::testing::internal::GetCapturedStderr();
}

TEST(TerminalTest, HearsOfTheEnginesOnlyWhenItAsks)
{
    EXPECT_EQ(Heard(), "");
    qputenv("QT_LOGGING_RULES", "*.debug=false");
    EXPECT_EQ(Heard(), "chatter\n");
    qunsetenv("QT_LOGGING_RULES");
}

} // namespace
} // namespace orvane::testing
