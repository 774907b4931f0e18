#pragma once

#include "core/effect_kind.h"
#include "core/text.h"
#include "insertion/page_markup.h"

#include <string_view>
#include <vector>

namespace orvane {

/// Where a part of an effect stands.
enum class PartPlace
{
    Head,
    Body,
    OnLoad,     ///< a call in the BODY tag
    OnUnload,   ///< a call in the BODY tag
    PageScript, ///< the lines of the page script, which all effects that need them share
};

/// A part of an effect: a block from its first comment through its last, a call, or lines.
struct EffectPart
{
    PartPlace Place = PartPlace::Body;
    CodeSpan Span;
    bool operator==(const EffectPart&) const = default;
};

/// What is known of an effect's code by the page alone.
enum class EffectState
{
    Whole,
    Changed, ///< a comment is not as this program writes it, or code follows on its line
    Half,    ///< one comment without the other
    Nested,  ///< a comment of an effect stands inside it, or it stands inside another effect
};

/// An effect as it stands in a page. Blocks of one name are one effect when one of them is in the
/// HEAD, since they share its script; else each is an effect of its own.
struct EffectInPage
{
    Text Name;                     ///< in its comments
    std::vector<EffectKind> Kinds; ///< every effect whose comments have that name
    EffectState State = EffectState::Whole;
    std::vector<EffectPart> Parts; ///< in the order of the page, the page script's lines last
    bool NeedsPageScript = false;  ///< in today's browsers
    bool operator==(const EffectInPage&) const = default;
};

/// Every effect in a page of any encoding, in the order of the page. What a browser does not take
/// for a comment, as in scripts, styles, text areas and other comments, is no effect's.
std::vector<EffectInPage> EffectsIn(std::string_view page);

/// Whether a command may touch the effect.
bool CanBeTouched(const EffectInPage& effect);

} // namespace orvane
