#include "delivery/files_to_upload.h"

#include "insertion/page_script.h"

namespace orvane {

namespace {

constexpr TextView noRequiredFiles = u"No Required Files.";

/// The files that an effect of this kind always needs, as the list shows them.
struct FixedFiles
{
    EffectKind Kind;
    std::array<TextView, 3> Names;
};

constexpr FixedFiles fixedFiles[] = {
    {EffectKind::AdvancedAnimator, {u"Animate1.class", u"CoolTool3.class"}},
    {EffectKind::AnimationWizard, {u"Animate1.class", u"CoolTool3.class"}},
    {EffectKind::BannerWizard, {u"Animate1.class", u"CoolTool3.class"}},
    {EffectKind::AnimatedButton, {u"Animate1.class", u"CoolTool3.class"}},
    {EffectKind::SwirlyText, {u"ColorSwirl.Class"}},
    {EffectKind::TypewriterText, {u"Typewriter9.class", u"AudioLoader3.class", u"CoolTool3.class"}},
    {EffectKind::FadingMessage, {u"FadeText.class"}},
    {EffectKind::NavigatorTicker, {u"NavigatorTicker20.class"}},
    {EffectKind::MoreImageEffects, {u"Animate1.class", u"CoolTool3.class", u"invisi.gif"}},
    {EffectKind::ImageFade, {u"ImageFade2ech.class", u"Pixelator3.class"}},
    {EffectKind::PasswordServer, {u"password.cgi"}},
    {EffectKind::PopupWindow, {noRequiredFiles}},
    {EffectKind::TextButton, {u"ButtonPLUS3.class"}},
    {EffectKind::FlyingText, {u"nameMotion.swf"}},
};

/// Whether the class files depend on what the author chose in the wizard: the image effect, or the
/// direction in which a text scrolls. The payload then names the chosen ones.
bool AreClassFilesChosen(EffectKind kind)
{
    return kind == EffectKind::ImageEffects || kind == EffectKind::SmoothScroll;
}

void AddNonEmpty(std::vector<Text>& list, const auto& names)
{
    for (const auto& name : names)
        if (!name.empty())
            list.emplace_back(name);
}

} // namespace

std::vector<Text> FilesToUpload(const FinishedPayload& payload)
{
    std::vector<Text> list;
    for (const FixedFiles& fixed : fixedFiles)
        if (fixed.Kind == payload.Effect.Kind)
            AddNonEmpty(list, fixed.Names);
    if (AreClassFilesChosen(payload.Effect.Kind))
        AddNonEmpty(list, payload.Effect.SupportFiles);
    if (!payload.NeedsFiles)
        list.emplace_back(noRequiredFiles);
    if (payload.RunsToday) {
        std::erase(list, noRequiredFiles);
        list.emplace_back(pageScriptFile);
    }
    return list;
}

std::vector<Text> ListedFiles(const FinishedPayload& payload)
{
    std::vector<Text> list;
    if (payload.NeedsFiles)
        AddNonEmpty(list, payload.Effect.Required.Names);
    return list;
}

} // namespace orvane
