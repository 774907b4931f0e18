#include "delivery/editor_help.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(EditorHelpTest, OffersTheEditorsTopicElseThePages)
{
    EXPECT_EQ(setWebPageEditor(u"FrontPage", false, 50),
              (EditorHelp{21, u"Need help inserting this effect into FrontPage?"}));
    EXPECT_EQ(setWebPageEditor(u"FrontPage", true, 50).Topic, 29);
    EXPECT_EQ(setWebPageEditor(u"DreamWeaver", true, 50).Topic, 55);
    EXPECT_EQ(setWebPageEditor(u"Page Loom", true, 50),
              (EditorHelp{50, u"Need help inserting this effect into Page Loom?"}));
    // The preferences write the second of these names, which is no editor's, with a blank.
    for (const TextView name : {u"Other", u"Dream Weaver", u"frontpage", u""})
        EXPECT_EQ(setWebPageEditor(name, false, 50),
                  (EditorHelp{50, u"Need help inserting this effect into your Web Page editor?"}));
}

} // namespace
} // namespace orvane::testing
