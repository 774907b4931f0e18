#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Sound Effect window; the defaults are those of a fresh window.
struct SoundEffect
{
    static constexpr std::array Kinds = {EffectKind::Sound};
    static constexpr TextView Block = u"sound-1";
    static constexpr std::array<ControlName, 1> PageStarts = {"txtSound"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 2> IfBlocked = {u"button", u"click"};

    BlockSound Sound;     ///< on arrival
    Text txtLeavingSound; ///< empty for none
    Text LeavingSoundSource;
    int sldrVolume = 60;           ///< percent
    Text cboTimes = u"1";          ///< 0 is for ever
    bool chkControls = true;       ///< shows the player
    Text cboIfBlocked = u"button"; ///< one of IfBlocked: how it begins where the browser waits
    bool chkRememberOff = true;    ///< who stopped it is left in peace
    BlockAttributes Others;
    bool operator==(const SoundEffect&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<SoundEffect> Effect, class Field>
void ForEachField(Effect& effect, Field&& field)
{
    field(ContentField("txtSound"), effect.Sound.Address);
    field(SourceField("SoundSource"), effect.Sound.Source);
    field("txtLeavingSound", effect.txtLeavingSound);
    field(SourceField("LeavingSoundSource"), effect.LeavingSoundSource);
    field(NumberField("sldrVolume", 0, 100), effect.sldrVolume);
    field(NumberField("cboTimes", 0, 10), effect.cboTimes);
    field("chkControls", effect.chkControls);
    field(ChoiceField("cboIfBlocked", SoundEffect::IfBlocked), effect.cboIfBlocked);
    field("chkRememberOff", effect.chkRememberOff);
    field(Secret("Others"), effect.Others);
}

/// The sound on arrival.
BlockContent ContentOf(const SoundEffect& effect);

/// Takes it from there.
void TakeContent(SoundEffect& effect, BlockContent content);

/// The sound on leaving.
std::vector<BlockSound> SoundsOf(const SoundEffect& effect);

/// What belongs to the sound on arrival is disabled without one.
Look LookOf(const SoundEffect& effect);

/// The complaint that keeps the author on the page, or nothing.
std::optional<Complaint> Check(const SoundEffect& effect);

} // namespace orvane
