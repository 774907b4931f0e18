#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/picture_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Random Image window; the defaults are those of a fresh window.
struct RandomImage
{
    static constexpr std::array Kinds = {EffectKind::RandomImage};
    static constexpr TextView Block = u"image-1";
    static constexpr PicturesSeen Seen = PicturesSeen::First;
    static constexpr std::array<ControlName, 2> PageStarts = {"lstPictures", "cboRule"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 3> Rules = {u"visit", u"day", u"chance"};

    BlockPictures lstPictures;
    Text cboRule = u"visit"; ///< one of Rules: when another picture comes
    PictureSize Size;
    Text txtBorder = u"0"; ///< pixels, as typed
    Text BorderColor = u"#000000";
    Text cboTarget; ///< of all links
    BlockAttributes Others;
    bool operator==(const RandomImage&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<RandomImage> Random, class Field>
void ForEachField(Random& random, Field&& field)
{
    field(ContentField("lstPictures"), random.lstPictures);
    field(ChoiceField("cboRule", RandomImage::Rules), random.cboRule);
    ForEachField(random.Size, field);
    field(NumberField("txtBorder", 0, 50), random.txtBorder);
    field(ColorField("cmdBorderColor"), random.BorderColor);
    field("cboTarget", random.cboTarget);
    field(Secret("Others"), random.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const RandomImage& random, int page);

} // namespace orvane
