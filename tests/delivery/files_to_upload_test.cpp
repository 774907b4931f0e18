#include "delivery/files_to_upload.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

/// What the list to upload says on the last page, the author's own files behind a bar.
Text ListOf(EffectKind kind, const std::array<Text, 3>& supportFiles, TextView picture,
            bool isBlock = false)
{
    EffectPayload effect{.Kind = kind, .SupportFiles = supportFiles, .IsBlock = isBlock};
    effect.Required.RequiredFileNames[7] = picture;
    Text list;
    for (const Text& name : FilesToUpload(Finish(effect)))
        list += name + u" ";
    list += u"|";
    for (const Text& name : ListedFiles(Finish(effect)))
        list += u" " + name;
    return list;
}

TEST(FilesToUploadTest, ListsFixedFilesThenTheAuthors)
{
    EXPECT_EQ(ListOf(EffectKind::MoreImageEffects, {}, u"p.gif"),
              u"Animate1.class CoolTool3.class invisi.gif | p.gif");
    EXPECT_EQ(ListOf(EffectKind::ImageEffects, {u"TmapCube.class", u"TmapCubeb.class"}, u"p.gif"),
              u"TmapCube.class TmapCubeb.class | p.gif");
    EXPECT_EQ(ListOf(EffectKind::SmoothScroll, {u"RTLScroll.class"}, u""), u"RTLScroll.class |");
    EXPECT_EQ(ListOf(EffectKind::PasswordServer, {u"password.cgi"}, u""), u"password.cgi |")
        << "not listed twice";
    EXPECT_EQ(ListOf(EffectKind::PopupWindow, {}, u"p.html"), u"No Required Files. | p.html");
    EXPECT_EQ(ListOf(EffectKind::StatusBarTicker, {}, u"stray.gif"), u"No Required Files. |");
    EXPECT_EQ(ListOf(EffectKind::Tooltips, {}, u""), u"No Required Files. |");
    EXPECT_EQ(ListOf(EffectKind::AnimationWizard, {}, u"p.gif", true), u"| p.gif");
    EXPECT_EQ(ListOf(EffectKind::AnimationWizard, {}, u"", true), u"No Required Files. |");
    EXPECT_EQ(ListOf(EffectKind::FadingMessage, {}, u"", true), u"No Required Files. |");
}

} // namespace
} // namespace orvane::testing
