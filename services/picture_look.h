#pragma once

#include "core/fields.h"

#include <array>
#include <span>

namespace orvane {

/// How one picture or text can give way to another: two ways without a shape, then the numbers of
/// RevealTransitions.
inline constexpr std::array<TextView, 26> pictureChanges = {
    u"cut", u"fade", u"0",  u"1",  u"2",  u"3",  u"4",  u"5",  u"6",  u"7",  u"8",  u"9",  u"10",
    u"11",  u"12",   u"13", u"14", u"15", u"16", u"17", u"18", u"19", u"20", u"21", u"22", u"23"};

/// The numbers alone.
inline constexpr std::span<const TextView> pictureTransitions =
    std::span(pictureChanges).subspan<2>();

/// How a picture fits into a size that is not its own.
inline constexpr std::array<TextView, 3> pictureFits = {u"contain", u"cover", u"fill"};

/// The size in which a block shows its pictures, in three fields that are the same everywhere. 0 is
/// as the pictures are.
struct PictureSize
{
    Text txtWidth = u"0";     ///< pixels, as typed
    Text txtHeight = u"0";    ///< pixels, as typed
    Text cboFit = u"contain"; ///< one of pictureFits
    bool operator==(const PictureSize&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<PictureSize> Size, class Field>
void ForEachField(Size& size, Field&& field)
{
    field(NumberField("txtWidth", 0, 4000), size.txtWidth);
    field(NumberField("txtHeight", 0, 4000), size.txtHeight);
    field(ChoiceField("cboFit", pictureFits), size.cboFit);
}

} // namespace orvane
