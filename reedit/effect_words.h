#pragma once

#include "core/payload.h"
#include "reedit/effects_in_page.h"

#include <string_view>
#include <vector>

namespace orvane {

/// The numbers of a page's lines.
class PageLines
{
public:
    explicit PageLines(std::string_view page);

    /// The number of the line in which that byte stands, counted from 1.
    Text LineOf(std::size_t at) const;

private:
    std::vector<std::size_t> m_ends; ///< the last byte of each line end
};

/// The title of the effect in the catalogue; of several that share its name, all of them; its name
/// where the catalogue does not have it.
Text TitleOf(const EffectInPage& effect);

/// What the list of a page's effects tells of one of them.
struct ListedEffect
{
    TextView Picture; ///< as in the catalogue; empty for an effect that it does not have
    Text Title;
    Text Place;              ///< such as "in the body, line 40"
    TextView State;          ///< such as "changed by hand"
    std::vector<Text> Files; ///< those beside the page that it names, and the page script
    bool operator==(const ListedEffect&) const = default;
};

/// What the list tells of these effects of EffectsIn(page), in their order.
std::vector<ListedEffect> ListEffects(std::string_view page,
                                      const std::vector<EffectInPage>& effects);

/// All of it in one sentence, which a screen reader speaks.
Text SentenceOf(const ListedEffect& effect);

/// Why no command may touch an effect in this state; empty where one may.
TextView WhyNotTouched(EffectState state);

/// The question before the effect is taken out: what goes, and which files nothing else in the page
/// names. Expects an effect of EffectsIn(page).
Text QuestionToTakeOut(std::string_view page, const EffectInPage& effect);

/// The question before the effect, of which it is not known what it was made with, gives way to the
/// payload's: it shows the lines of its code that get lost; empty when none does.
Text QuestionToReplace(std::string_view page, const EffectInPage& effect,
                       const FinishedPayload& payload);

} // namespace orvane
