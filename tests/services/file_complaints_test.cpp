#include "services/file_complaints.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(FileComplaintsTest, SayTheSameOnceAboutAsManyFilesAsFitOnAScreen)
{
    FileComplaints complaints;
    for (int i = 0; i < 22; ++i)
        complaints.Add({u"Too large:", {}}, u"a");
    complaints.Add(AboutFiles(u"Too small:", {u"b"}), u"b");
    ASSERT_EQ(complaints.All().size(), 2u);
    const Text large = complaints.All()[0].Words;
    EXPECT_TRUE(large.starts_with(u"Too large:\r\na\r\na"));
    EXPECT_TRUE(large.ends_with(u"a\r\nand 2 more"));
    EXPECT_EQ(complaints.All()[1].Words, u"Too small:\r\nb");
}

} // namespace
} // namespace orvane::testing
