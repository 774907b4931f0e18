#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Thought Bubbles window; the defaults are those of a fresh window.
struct ThoughtBubbles
{
    static constexpr std::array Kinds = {EffectKind::ThoughtBubbles};
    static constexpr TextView Block = u"bubble-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"txtPicture", "txtBubble", "cboShow"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdPaperColor"}};
    static constexpr std::array<TextView, 3> Tails = {u"left", u"middle", u"right"};
    static constexpr std::array<TextView, 3> Shows = {u"hover", u"click", u"always"};

    BlockPicture Picture;
    Text txtBubble;         ///< lines of it end in CR LF
    Text txtPlaceX = u"50"; ///< of who thinks it, in percent of the picture's width, as typed
    Text txtPlaceY = u"50"; ///< the same, in percent of its height
    Text txtSecondBubble;   ///< empty for none
    Text txtSecondPlaceX = u"50";
    Text txtSecondPlaceY = u"50";
    Text cboShow = u"hover";  ///< one of Shows
    Text cboTail = u"middle"; ///< one of Tails: where the bubble's tail is
    Text txtWidth = u"200";   ///< of a bubble in pixels, as typed
    TextLook Look{.TextColor = u"#222222"};
    Text PaperColor = u"#ffffff";
    BlockAttributes Others;
    bool operator==(const ThoughtBubbles&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<ThoughtBubbles> Bubbles, class Field>
void ForEachField(Bubbles& bubbles, Field&& field)
{
    field(ContentField("txtPicture"), bubbles.Picture.Address);
    field(SourceField("PictureSource"), bubbles.Picture.Source);
    field(ContentField("PictureWidth"), bubbles.Picture.Width);
    field(ContentField("PictureHeight"), bubbles.Picture.Height);
    field(ContentField("txtDescription"), bubbles.Picture.Description);
    field(ContentField("txtBubble"), bubbles.txtBubble);
    field(NumberField("txtPlaceX", 0, 100), bubbles.txtPlaceX);
    field(NumberField("txtPlaceY", 0, 100), bubbles.txtPlaceY);
    field(ContentField("txtSecondBubble"), bubbles.txtSecondBubble);
    field(NumberField("txtSecondPlaceX", 0, 100), bubbles.txtSecondPlaceX);
    field(NumberField("txtSecondPlaceY", 0, 100), bubbles.txtSecondPlaceY);
    field(ChoiceField("cboShow", ThoughtBubbles::Shows), bubbles.cboShow);
    field(ChoiceField("cboTail", ThoughtBubbles::Tails), bubbles.cboTail);
    field(NumberField("txtWidth", 60, 800), bubbles.txtWidth);
    ForEachField(bubbles.Look, field);
    field(ColorField("cmdPaperColor"), bubbles.PaperColor);
    field(Secret("Others"), bubbles.Others);
}

/// The picture with the texts of its bubbles.
BlockContent ContentOf(const ThoughtBubbles& bubbles);

/// Takes them from there.
void TakeContent(ThoughtBubbles& bubbles, BlockContent content);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const ThoughtBubbles& bubbles, int page);

/// Mends each field as MendField() does.
void Tidy(ThoughtBubbles& bubbles);

} // namespace orvane
