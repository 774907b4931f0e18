#include "services/image_list.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(ImageListTest, RefusesABlankInTheNameButNotAroundItNorInTheFolder)
{
    RequiredFiles files;
    const auto complaint = RecordImage(files, u"/x", u"my pic.gif");
    ASSERT_TRUE(complaint);
    EXPECT_EQ(ToUtf8(complaint->Words),
              "This special effect does not allow image filenames containing space "
              "characters.\r\nPlease rename the image or select another image.\r\nmy pic.gif");
    EXPECT_EQ(files, RequiredFiles());

    EXPECT_EQ(RecordImage(files, u"/my pictures", u" pic.gif"), std::nullopt);
    EXPECT_EQ(files.RequiredFileSources[0], u"/my pictures/ pic.gif");
}

TEST(ImageListTest, FiftySecondImageIsCountedButNotRecorded)
{
    RequiredFiles files;
    for (int i = 0; i < 52; ++i)
        EXPECT_EQ(RecordImage(files, u"/x", FromUtf8(std::to_string(i))), std::nullopt);
    EXPECT_EQ(files.RequiredFileNames[50], u"50");
    EXPECT_EQ(files.RequiredFileCount, 52);
    files.RequiredFileCount = 32767;
    EXPECT_EQ(RecordImage(files, u"/x", u"more"), std::nullopt);
    EXPECT_EQ(files.RequiredFileCount, 32767);
}

TEST(ImageListTest, SizeFieldsGrowToTheLargestPictureAndNeverShrink)
{
    EXPECT_EQ(GrownField(u"100", 80), u"100");
    EXPECT_EQ(GrownField(u"100", 120), u"120");
    EXPECT_EQ(GrownField(u"120", 90), u"120");
    EXPECT_EQ(GrownField(u"abc", 5), u"5");
    EXPECT_EQ(GrownField(u"", 0), u"");
    EXPECT_EQ(GrownField(u"90px", 80), u"90px");
}

} // namespace
} // namespace orvane::testing
