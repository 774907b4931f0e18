#include "delivery/publish_mode.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(PublishModeTest, EachMissingFilesModeHasOneWayToCopyAndOneWayOut)
{
    for (const PublishMode mode : {PublishMode::MissingFiles, PublishMode::MissingForPreview}) {
        const PublishControls controls = ControlsOf(mode);
        EXPECT_TRUE(controls.FromBoxes && controls.lstMissingFiles);
        EXPECT_NE(controls.cmdManualCopy, controls.picCopyThenPreview);
        EXPECT_NE(controls.cmdDoneCopying, controls.picCopyThenPreview);
        EXPECT_NE(controls.ToBoxes, controls.picCopyThenPreview);
        EXPECT_FALSE(controls.cmdCopyFiles || controls.cmdPrevious || controls.cmdNext);
    }
}

TEST(PublishModeTest, ShowsAgainWhatAMissingFilesModeHid)
{
    const PublishControls controls = ControlsOf(PublishMode::Publish);
    EXPECT_TRUE(controls.ToBoxes && controls.cmdCopyFiles && controls.Label4);
    EXPECT_TRUE(controls.cmdPrevious && controls.cmdNext);
}

TEST(PublishModeTest, DoneCopyingEndsTheWizardUnderThePanelOfTheHeadCode)
{
    EXPECT_EQ(DoneCopying(), (AfterCopying{4, 9, false, true, u"&Done", false}));
}

} // namespace
} // namespace orvane
