#include "core/effect_markers.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(EffectMarkersTest, ABeginMarkerTellsItsEffectAndNoOtherCommentDoes)
{
    const EffectMarkers markers = MarkersOf(u"Popup: a > b");
    EXPECT_EQ(markers.Begin, u"<!-- ***** Begin:Varlo Popup: a > b special effect ***** -->");
    EXPECT_EQ(NameInBeginMarker(markers.Begin), u"Popup: a > b");
    EXPECT_EQ(NameInBeginMarker(ToUpper(TextView(markers.Begin))), u"POPUP: A > B");
    EXPECT_EQ(NameInBeginMarker(MarkersOf(u"").Begin), u"");
    for (const TextView other : {TextView(markers.End), TextView(u"<!-- ***** Begin:Varlo"),
                                 TextView(u"<!-- ***** Begin:Varlo special effect ***** -->")})
        EXPECT_EQ(NameInBeginMarker(other), std::nullopt) << ToUtf8(other);
}

} // namespace
} // namespace orvane::testing
