#include "effects/page/sound_effect.h"

#include "core/percents.h"

#include <utility>

namespace orvane {

BlockContent ContentOf(const SoundEffect& effect)
{
    return effect.Sound;
}

void TakeContent(SoundEffect& effect, BlockContent content)
{
    effect.Sound = std::get<BlockSound>(std::move(content));
}

std::vector<BlockSound> SoundsOf(const SoundEffect& effect)
{
    return {{effect.txtLeavingSound, effect.LeavingSoundSource}};
}

Look LookOf(const SoundEffect& effect)
{
    Look look;
    for (const ControlName onArrival :
         {"cboTimes", "chkControls", "cboIfBlocked", "chkRememberOff"})
        look.push_back({.Control = onArrival, .IsEnabled = !effect.Sound.Address.empty()});
    return look;
}

std::optional<Complaint> Check(const SoundEffect& effect)
{
    const auto& [arrival, arrivalSource] = effect.Sound;
    if (OneLine(arrival).empty() && OneLine(effect.txtLeavingSound).empty())
        return Complaint{
            u"Please choose a sound for the arrival, for leaving the page, or for both.",
            "txtSound"};
    if (arrival == effect.txtLeavingSound && arrivalSource != effect.LeavingSoundSource)
        return Complaint{Join({u"Two different sounds are called \"", WithoutPercents(arrival),
                               u"\".  Please give one of the files another name."}),
                         "txtLeavingSound"};
    return CheckNumbers(effect, 0);
}

} // namespace orvane
