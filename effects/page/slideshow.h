#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "services/hints.h"
#include "services/image_list.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

/// What the author enters on the Slideshow window; the defaults are those of a fresh window.
struct Slideshow
{
    static constexpr std::array Kinds = {EffectKind::Slideshow};
    static constexpr int Pages = 2;

    std::vector<ImageRow> Rows;
    Text txtSlideDuration = u"5"; ///< seconds, as typed
    bool chkDisplayControls = false;
    bool chkAutoStart = true;
    bool chkRepeat = false;
    Text cmbTransitions;    ///< one of RevealTransitions; empty when none was chosen
    RequiredFiles Required; ///< every image added so far
    bool operator==(const Slideshow&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<Slideshow> Show, class Field>
void ForEachField(Show& show, Field&& field)
{
    field("List1", show.Rows);
    field("txtSlideDuration", show.txtSlideDuration);
    field("chkDisplayControls", show.chkDisplayControls);
    field("chkAutoStart", show.chkAutoStart);
    field("chkRepeat", show.chkRepeat);
    field("cmbTransitions", show.cmbTransitions);
}

/// The complaint when the slideshow would neither start by itself nor have buttons, with the check
/// box that is ticked instead as its control; nothing otherwise. `unticked` is the object name of
/// the check box that the author has just cleared.
std::optional<Complaint> CheckMoves(const Slideshow& show, std::string_view unticked);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const Slideshow& show, int page);

/// The hints at images whose quotation mark ends the text in the script, and at a duration that it
/// cannot carry.
std::vector<Hint> HintsOf(const Slideshow& show);

/// The slideshow's page text, with the images that must be copied beside the page. Expects a show
/// that passes CheckPage() on every page.
EffectPayload Generate(const Slideshow& show);

} // namespace orvane
