#include "reedit/applet_tag.h"

#include <set>

namespace orvane {

namespace {

using Way = AppletDispatch::Way;

struct AppletRow
{
    TextView Prefix; ///< five letters; behind a quote the first four of them count
    AppletDispatch Goes;
    bool Fills = true; ///< the wizard reads its fields out of the tag
};

constexpr AppletRow To(TextView prefix, EffectKind kind, bool fills = true)
{
    return {prefix, {Way::Wizard, kind}, fills};
}

/// The first row that fits counts.
constexpr std::array<AppletRow, 14> rows = {{
    {u"Clock", {Way::Nowhere}},
    {u"Anima", {Way::Choice}},
    To(u"AnFad", EffectKind::ImageEffects),
    To(u"Lake.", EffectKind::ImageEffects),
    To(u"rippl", EffectKind::ImageEffects),
    To(u"TmapC", EffectKind::ImageEffects),
    To(u"Butto", EffectKind::DynamicButton, false),
    To(u"Navig", EffectKind::NavigatorTicker),
    To(u"FadeT", EffectKind::FadingMessage),
    To(u"Color", EffectKind::SwirlyText),
    To(u"Simpl", EffectKind::Sound, false),
    To(u"Typew", EffectKind::TypewriterText),
    To(u"RTLSc", EffectKind::SmoothScroll),
    To(u"LTRSc", EffectKind::SmoothScroll),
}};

} // namespace

PastedTag TagOf(TextView pasted)
{
    constexpr TextView key = u"CODE=";
    const std::size_t from = Find(pasted, key) + key.size();
    return {Text(pasted), Text(Mid(pasted, from, 5)), Text(Mid(pasted, from, 8))};
}

AppletDispatch RecognizeApplet(TextView appletTextAfterCODE)
{
    for (const AppletRow& row : rows)
        if (appletTextAfterCODE == row.Prefix ||
            appletTextAfterCODE == Join({u"\"", Left(row.Prefix, 4)}))
            return row.Goes;
    return {};
}

std::vector<EffectKind> EffectsOfTags()
{
    std::set<EffectKind> kinds(animationWizards.begin(), animationWizards.end());
    for (const AppletRow& row : rows)
        if (row.Goes.Next == Way::Wizard && row.Fills)
            kinds.insert(row.Goes.Kind);
    return {kinds.begin(), kinds.end()};
}

} // namespace orvane
