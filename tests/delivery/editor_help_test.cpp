#include "delivery/editor_help.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

struct EditorCase
{
    TextView Editor;
    bool ScriptedHelp;
    int Topic;
    TextView Named;
};

class EditorHelpTest : public ::testing::TestWithParam<EditorCase>
{
};

TEST_P(EditorHelpTest, OffersTheEditorsTopicElseThePages)
{
    const EditorCase& row = GetParam();
    const EditorHelp help = setWebPageEditor(row.Editor, row.ScriptedHelp, 50);
    EXPECT_EQ(help.Topic, row.Topic);
    EXPECT_EQ(help.Caption, Join({u"Need help inserting this effect into ", row.Named, u"?"}));
}

constexpr TextView unknown = u"your Web Page editor";

INSTANTIATE_TEST_SUITE_P(
    Editors, EditorHelpTest,
    ::testing::Values(EditorCase{u"FrontPage", false, 21, u"FrontPage"},
                      EditorCase{u"FrontPage", true, 29, u"FrontPage"},
                      EditorCase{u"FrontPage Express", false, 37, u"FrontPage Express"},
                      EditorCase{u"FrontPage Express", true, 38, u"FrontPage Express"},
                      EditorCase{u"DreamWeaver", true, 55, u"DreamWeaver"},
                      // The preferences write this name with a blank.
                      EditorCase{u"Dream Weaver", false, 50, unknown},
                      EditorCase{u"Page Loom", true, 50, u"Page Loom"},
                      EditorCase{u"Other", false, 50, unknown},
                      EditorCase{u"frontpage", false, 50, unknown},
                      EditorCase{u"", false, 50, unknown}));

} // namespace
} // namespace orvane
