#include "effects/page/page_transitions.h"

#include "core/template.h"

namespace orvane {

namespace {

// Both pages need the first rule. The script moves the two pictures, so that the browser's own
// cross-fade has to go.
constexpr Template style(uR"page(
«OpenTag»
@media (prefers-reduced-motion:no-preference){@view-transition{navigation:auto}}
::view-transition-old(root),::view-transition-new(root){animation:none;mix-blend-mode:normal}
</style>
«Script»
)page");

bool HasCover(const PageTransitions& transitions)
{
    return transitions.chkElsewhere && transitions.cboArrival != PageTransitions::None;
}

} // namespace

Look LookOf(const PageTransitions& transitions)
{
    return {
        {.Control = "chkElsewhere", .IsEnabled = transitions.cboArrival != PageTransitions::None},
        {.Control = "cmdCoverColor", .IsEnabled = HasCover(transitions)}};
}

std::optional<Complaint> Check(const PageTransitions& transitions)
{
    if (transitions.cboArrival == PageTransitions::None &&
        transitions.cboLeaving == PageTransitions::None)
        return Complaint{u"Please choose how the page comes, how the one before it goes, or both.",
                         "cboArrival"};
    if (auto complaint = CheckNumbers(transitions, 0))
        return complaint;
    return HasCover(transitions) ? CheckColor(transitions.CoverColor, u"the cover", "cmdCoverColor")
                                 : std::nullopt;
}

EffectPayload Generate(const PageTransitions& transitions)
{
    const Block block = BlockOf(transitions);
    return {
        .Kind = EffectKind::PageTransitions,
        .HEADHTML =
            Fill(style, {{u"OpenTag", OpenTagOf(block, u"style")}, {u"Script", ScriptOf(block)}}),
        .IsBlock = true,
    };
}

} // namespace orvane
