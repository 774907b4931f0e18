#include "delivery/required_files.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

using Names = std::vector<Text>;

/// What the lists to upload say: from the start, and behind that on the last page.
struct UploadCase
{
    const char* Name;
    EffectKind Kind;
    std::array<Text, 3> SupportFiles;
    Names Picture;
    Names FromStart;
    Names OnLastPage;
};

class FilesToUploadTest : public ::testing::TestWithParam<UploadCase>
{
};

TEST_P(FilesToUploadTest, ListsFixedFilesThenTheAuthors)
{
    const UploadCase& row = GetParam();
    EffectPayload effect{.Kind = row.Kind, .SupportFiles = row.SupportFiles};
    for (std::size_t i = 0; i < row.Picture.size(); ++i)
        effect.Required.Names.at(2 * i) = row.Picture[i];
    EXPECT_EQ(FilesToUpload(Finish(effect)), row.FromStart);
    EXPECT_EQ(ListedFiles(Finish(effect)), row.OnLastPage);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, FilesToUploadTest,
    ::testing::Values(
        UploadCase{"MoreImageEffects",
                   EffectKind::MoreImageEffects,
                   {},
                   {u"p.gif", u"q.gif"},
                   {u"Animate1.class", u"CoolTool3.class", u"invisi.gif"},
                   {u"p.gif", u"q.gif"}},
        UploadCase{"ImageCube",
                   EffectKind::ImageEffects,
                   {u"TmapCube.class", u"TmapCubeb.class"},
                   {u"p.gif"},
                   {u"TmapCube.class", u"TmapCubeb.class"},
                   {u"p.gif"}},
        UploadCase{"ImageBrighten", EffectKind::ImageEffects, {}, {u"p.gif"}, {}, {u"p.gif"}},
        UploadCase{"RightToLeft",
                   EffectKind::SmoothScroll,
                   {u"RTLScroll.class"},
                   {},
                   {u"RTLScroll.class"},
                   {}},
        UploadCase{"SupportFilesOfAFixedKindAreNotListedTwice",
                   EffectKind::PasswordServer,
                   {u"password.cgi"},
                   {},
                   {u"password.cgi"},
                   {}},
        UploadCase{"PopupWindowSaysNoneAndListsOne",
                   EffectKind::PopupWindow,
                   {},
                   {u"p.html"},
                   {u"No Required Files."},
                   {u"p.html"}},
        UploadCase{"NoFilesNeeded",
                   EffectKind::StatusBarTicker,
                   {},
                   {u"stray.gif"},
                   {u"No Required Files."},
                   {}},
        UploadCase{"TooltipsOfText", EffectKind::Tooltips, {}, {}, {u"No Required Files."}, {}},
        UploadCase{"TooltipsOfImages", EffectKind::Tooltips, {}, {u"p.gif"}, {}, {u"p.gif"}}),
    [](const auto& row) { return row.param.Name; });

} // namespace
} // namespace orvane::testing
