#pragma once

#include "core/pasted_tag.h"
#include "core/payload.h"
#include "core/text.h"

#include <array>
#include <vector>

namespace orvane {

/// The tag that this text is. The characters behind "CODE=", by which its applet is known, are
/// those behind the first one, a quote among them; those from the fifth character of the text on
/// when there is none.
PastedTag TagOf(TextView pasted);

/// What becomes of a pasted tag.
struct AppletDispatch
{
    /// What happens next.
    enum class Way
    {
        NotRecognized, ///< the author is told so
        Nowhere,       ///< the applet is known but has no wizard; the window closes
        Choice,        ///< the author picks one of three wizards
        Wizard,        ///< the wizard of Kind
    };
    Way Next = Way::NotRecognized;
    EffectKind Kind = EffectKind::None;
    bool operator==(const AppletDispatch&) const = default;
};

/// What becomes of the tag with these five characters behind CODE=. Behind an opening quote the
/// first four letters of an applet's name are enough.
AppletDispatch RecognizeApplet(TextView appletTextAfterCODE);

/// The wizards that make tags for the animation applet; the author picks one of them.
inline constexpr std::array<EffectKind, 3> animationWizards = {
    EffectKind::AdvancedAnimator, EffectKind::AnimationWizard, EffectKind::BannerWizard};

/// Every effect whose wizard a pasted tag fills, each once, in the order of the catalogue.
std::vector<EffectKind> EffectsOfTags();

/// What the author is told when more is pasted than the window takes.
inline constexpr TextView pastedTagTooLarge =
    u"The pasted text is larger than 4 MB.  Please paste the code of the applet alone, from the "
    u"\"<APPLET>\" tag to the \"</APPLET>\" tag.";

/// What the author is told about a tag that is not recognised.
inline constexpr TextView appletNotRecognized =
    u"Orvane does not recognize this special effect.  It cannot re-edit the Status bar scrolling "
    u"text special effect or the Fading background color special effect.";

} // namespace orvane
