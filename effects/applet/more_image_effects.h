#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/payload.h"
#include "services/hints.h"
#include "services/picked_image.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the More Image Effects window; the defaults are those of a fresh
/// window.
struct MoreImageEffects
{
    static constexpr std::array Kinds = {EffectKind::MoreImageEffects};
    static constexpr int Pages = 1;

    Text EffectPicker;  ///< one of moreImageEffectNames; empty while nothing is chosen
    Text ImageFile;     ///< without its folder
    Text ImageWidth;    ///< pixels, as typed
    Text ImageHeight;   ///< pixels, as typed
    Text BackColorText; ///< red, green and blue as "255,128,0"; empty when none was picked
    Text LinkUrl;
    int SpeedSlider = 50;   ///< 1 for slow to 100 for fast
    Text LoopCount;         ///< an entry of loopCounts, or as typed
    Text PauseSeconds;      ///< as typed
    Text StartEdge;         ///< an entry of startEdges, or as typed
    RequiredFiles Required; ///< the source of `ImageFile`
    bool operator==(const MoreImageEffects&) const = default;
};

/// The effects in the order of the pick-list.
inline constexpr std::array<TextView, 8> moreImageEffectNames = {
    u"Shutter in",           u"Shutter out", u"Slide-in", u"Slide-out",
    u"Slide-in & Slide-out", u"Expand",      u"Shrink",   u"Expand & Shrink"};

inline constexpr std::array<TextView, 6> loopCounts = {u"1", u"2", u"3", u"4", u"5", u"Infinite"};

inline constexpr std::array<TextView, 15> pauseLengths = {u"0",   u"0.1", u"0.2", u"0.3", u"0.4",
                                                          u"0.5", u"0.6", u"0.7", u"0.8", u"0.9",
                                                          u"1",   u"2",   u"3",   u"4",   u"5"};

inline constexpr std::array<TextView, 8> startEdges = {u"top",
                                                       u"right side",
                                                       u"bottom",
                                                       u"left side",
                                                       u"upper left corner",
                                                       u"upper right corner",
                                                       u"lower left corner",
                                                       u"lower right corner"};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<MoreImageEffects> Effects, class Field>
void ForEachField(Effects& effects, Field&& field)
{
    field("EffectPicker", effects.EffectPicker);
    field("ImageFile", effects.ImageFile);
    field("ImageWidth", effects.ImageWidth);
    field("ImageHeight", effects.ImageHeight);
    field("lblBGColor", effects.BackColorText);
    field("LinkUrl", effects.LinkUrl);
    field("SpeedSlider", effects.SpeedSlider);
    field("LoopCount", effects.LoopCount);
    field("PauseSeconds", effects.PauseSeconds);
    field("StartEdge", effects.StartEdge);
}

/// The rows of the chosen effect. That of the pause is shown as the loop count wants it; an effect
/// that PausesOnChoice() shows it until the loop count changes.
Look LookOf(const MoreImageEffects& effects);

/// Whether the chosen effect shows the row of the pause when it is chosen, whatever the loop count.
bool PausesOnChoice(const MoreImageEffects& effects);

/// Puts a picked image into the fields, or gives the complaint about a name with a blank. A file
/// that is not a picture changes nothing.
std::optional<Complaint> ChooseImage(MoreImageEffects& effects, const PickedImage& image);

/// The first failing check in order, or nothing when the wizard may finish.
std::optional<Complaint> Check(const MoreImageEffects& effects);

/// Puts "http://" in front of a link that begins with "www.".
void Tidy(MoreImageEffects& effects);

/// The hints at numbers that are none, and at a pause that the applet cannot wait.
std::vector<Hint> HintsOf(const MoreImageEffects& effects);

/// The page text of the chosen effect. Pause and edge are used even while their rows are hidden.
/// Expects effects that pass Check().
EffectPayload Generate(const MoreImageEffects& effects);

} // namespace orvane
