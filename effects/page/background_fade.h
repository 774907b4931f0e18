#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the window of Background Color Fading; the defaults are those of a
/// fresh window.
struct BackgroundFade
{
    static constexpr std::array Kinds = {EffectKind::BackgroundFade};
    static constexpr TextView Block = u"background-1";
    static constexpr std::array<ControlName, 1> PageStarts = {"cmdFirstColor"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdFirstColor"},
                                              ColorPair{"cmdTextColor", "cmdLastColor"}};
    static constexpr std::array<TextView, 3> Times = {u"arrival", u"leaving", u"both"};

    Text FirstColor = u"#ffffff";
    Text LastColor = u"#c0d8f0";
    Text txtSeconds = u"2";    ///< as typed
    Text cboWhen = u"arrival"; ///< one of Times
    bool chkAndBack = false;   ///< on arrival, to the first color again
    Text TextColor;            ///< of the page; empty: as it is
    BlockAttributes Others;
    bool operator==(const BackgroundFade&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<BackgroundFade> Fade, class Field>
void ForEachField(Fade& fade, Field&& field)
{
    field(ColorField("cmdFirstColor"), fade.FirstColor);
    field(ColorField("cmdLastColor"), fade.LastColor);
    field(NumberField("txtSeconds", 0.1, 10), fade.txtSeconds);
    field(ChoiceField("cboWhen", BackgroundFade::Times), fade.cboWhen);
    field("chkAndBack", fade.chkAndBack);
    field(ColorField("cmdTextColor"), fade.TextColor);
    field(Secret("Others"), fade.Others);
}

/// What happens on arrival is disabled where nothing does.
Look LookOf(const BackgroundFade& fade);

/// The complaint that keeps the author on the page, or nothing.
std::optional<Complaint> Check(const BackgroundFade& fade);

} // namespace orvane
