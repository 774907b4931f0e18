#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Image Filmstrip Scroller window; the defaults are those of a fresh
/// window.
struct ImageScroller
{
    static constexpr std::array Kinds = {EffectKind::ImageScroller};
    static constexpr TextView Block = u"film-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"lstPictures", "txtHeight"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 2> Directions = {u"left", u"right"};

    BlockPictures lstPictures;
    Text txtHeight = u"120";     ///< of all pictures, in pixels, as typed
    Text txtGap = u"8";          ///< pixels behind each picture, as typed
    int sldrSpeed = 40;          ///< pixels a second
    Text cboDirection = u"left"; ///< one of Directions
    bool chkFilmLook = false;
    bool chkPauseOnHover = true;
    Text cboTarget; ///< of all links
    BlockAttributes Others;
    bool operator==(const ImageScroller&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ImageScroller> Scroller, class Field>
void ForEachField(Scroller& scroller, Field&& field)
{
    field(ContentField("lstPictures"), scroller.lstPictures);
    field(NumberField("txtHeight", 20, 1000), scroller.txtHeight);
    field(NumberField("txtGap", 0, 500), scroller.txtGap);
    field(NumberField("sldrSpeed", 5, 500), scroller.sldrSpeed);
    field(ChoiceField("cboDirection", ImageScroller::Directions), scroller.cboDirection);
    field("chkFilmLook", scroller.chkFilmLook);
    field("chkPauseOnHover", scroller.chkPauseOnHover);
    field("cboTarget", scroller.cboTarget);
    field(Secret("Others"), scroller.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const ImageScroller& scroller, int page);

} // namespace orvane
