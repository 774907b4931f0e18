#include "reedit/effect_cuts.h"

#include <algorithm>
#include <set>

namespace orvane {

std::vector<EffectPart> BlocksOf(const EffectInPage& effect)
{
    std::vector<EffectPart> blocks;
    for (const EffectPart& part : effect.Parts)
        if (part.Place == PartPlace::Head || part.Place == PartPlace::Body)
            blocks.push_back(part);
    return blocks;
}

std::vector<BodyCall> CallsOf(std::string_view page, const EffectInPage& effect)
{
    const auto bodyTag = BodyTag(page);
    if (!bodyTag)
        return {};
    std::set<std::size_t> own;
    for (const EffectPart& part : effect.Parts)
        if (part.Place == PartPlace::OnLoad || part.Place == PartPlace::OnUnload)
            own.insert(part.Span.Begin);
    std::vector<BodyCall> calls = CallsIn(page, *bodyTag);
    std::erase_if(calls, [&](const BodyCall& call) { return !own.contains(call.Call.Begin); });
    return calls;
}

std::vector<Splice> CutsOfBlocks(std::string_view page, const std::vector<EffectPart>& blocks)
{
    if (blocks.empty())
        return {};
    std::vector<EffectPart> all;
    for (const EffectInPage& effect : EffectsIn(page))
        std::ranges::copy(BlocksOf(effect), std::back_inserter(all));
    return InsertedBlocks(page, all).CutsOf(blocks);
}

std::vector<Splice> CutsOf(std::string_view page, const EffectInPage& effect)
{
    std::vector<Splice> cuts = CutsOfBlocks(page, BlocksOf(effect));
    for (const BodyCall& call : CallsOf(page, effect))
        cuts.push_back({CutOf(page, call), {}});
    return cuts;
}

} // namespace orvane
