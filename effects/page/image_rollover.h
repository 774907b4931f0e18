#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Image Rollover window; the defaults are those of a fresh window.
struct ImageRollover
{
    static constexpr std::array Kinds = {EffectKind::ImageRollover};
    static constexpr TextView Block = u"rollover-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"lstTriggers", "txtFirst"};
    static constexpr int Pages = PageStarts.size();

    RolloverRows lstTriggers;
    Text txtFirst = u"1";              ///< number of the picture shown first, as typed; 0 is none
    Text txtFadeMilliseconds = u"250"; ///< as typed
    bool chkKeepLast = true;           ///< the last picture stays; else the first comes back
    Text txtWidth = u"0";              ///< of the picture in pixels, as typed; 0 is as it is
    Text cboTarget;                    ///< of all links
    BlockAttributes Others;
    bool operator==(const ImageRollover&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ImageRollover> Rollover, class Field>
void ForEachField(Rollover& rollover, Field&& field)
{
    field(ContentField("lstTriggers"), rollover.lstTriggers);
    field(NumberField("txtFirst", 0, 100), rollover.txtFirst);
    field(NumberField("txtFadeMilliseconds", 0, 3000), rollover.txtFadeMilliseconds);
    field("chkKeepLast", rollover.chkKeepLast);
    field(NumberField("txtWidth", 0, 4000), rollover.txtWidth);
    field("cboTarget", rollover.cboTarget);
    field(Secret("Others"), rollover.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const ImageRollover& rollover, int page);

} // namespace orvane
