#include "effects/page/cursor_trail.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(CursorTrailTest, CutsTheNameBehindEitherSeparator)
{
    const std::array<TextView, 3> cases[] = {
        {u"c:\\my pics\\a star.gif", u"a star.gif", u"c:\\my pics\\a star.gif"},
        {u"star.gif", u"star.gif", u""},
        {u"/pictures/", u"", u""}};
    for (const auto& [typed, name, source] : cases) {
        const EffectPayload payload = Generate({.txtImage = Text(typed)});
        EXPECT_EQ(payload.Required.RequiredFileNames[0], name);
        EXPECT_EQ(payload.Required.RequiredFileSources[0], source);
        EXPECT_NE(Find(payload.HEADHTML, Join({u"strImgPathFilename = '", name, u"';\r\n"})), 0u);
    }
}

TEST(CursorTrailTest, NeedsAnImage)
{
    EXPECT_EQ(Check({}), (Complaint{u"Please specify an image to use as your Mouse Cursor Trail.",
                                    "txtImage"}));
    EXPECT_EQ(Check({.txtImage = u"/pictures/"}), std::nullopt);
}

} // namespace
} // namespace orvane::testing
