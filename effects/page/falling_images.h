#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Falling/Floating Images window; the defaults are those of a fresh
/// window.
struct FallingImages
{
    static constexpr std::array Kinds = {EffectKind::FallingImages};
    static constexpr TextView Block = u"falling-1";
    static constexpr PicturesSeen Seen = PicturesSeen::None;
    static constexpr std::array<ControlName, 2> PageStarts = {"lstPictures", "txtNumber"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 2> Directions = {u"down", u"up"};
    static constexpr std::array<TextView, 2> Places = {u"front", u"behind"};
    static constexpr std::size_t MostPictures = 5;

    BlockPictures lstPictures;
    Text txtNumber = u"20";      ///< of pictures in the air, as typed
    Text cboDirection = u"down"; ///< one of Directions
    int sldrSpeed = 60;          ///< pixels a second, more or less
    Text txtSway = u"30";        ///< pixels to each side, as typed
    Text txtSmallest = u"16";    ///< width in pixels, as typed
    Text txtLargest = u"40";
    bool chkTurning = false;
    Text txtSeconds = u"60";  ///< until none comes any more, as typed; 0 is never
    Text cboPlace = u"front"; ///< one of Places
    BlockAttributes Others;
    bool operator==(const FallingImages&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<FallingImages> Falling, class Field>
void ForEachField(Falling& falling, Field&& field)
{
    field(ContentField("lstPictures"), falling.lstPictures);
    field(NumberField("txtNumber", 1, 50), falling.txtNumber);
    field(ChoiceField("cboDirection", FallingImages::Directions), falling.cboDirection);
    field(NumberField("sldrSpeed", 5, 500), falling.sldrSpeed);
    field(NumberField("txtSway", 0, 300), falling.txtSway);
    field(NumberField("txtSmallest", 4, 300), falling.txtSmallest);
    field(NumberField("txtLargest", 4, 300), falling.txtLargest);
    field("chkTurning", falling.chkTurning);
    field(NumberField("txtSeconds", 0, 3600), falling.txtSeconds);
    field(ChoiceField("cboPlace", FallingImages::Places), falling.cboPlace);
    field(Secret("Others"), falling.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const FallingImages& falling, int page);

} // namespace orvane
