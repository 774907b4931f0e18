#pragma once

#include "core/complaint.h"
#include "core/pasted_tag.h"
#include "services/block_fields.h"
#include "services/hints.h"
#include "services/picture_look.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters in the Animation Wizard; the defaults are those of a fresh window.
struct AnimationWizard
{
    static constexpr std::array Kinds = {EffectKind::AnimationWizard};
    static constexpr TextView Block = u"animation-1";
    static constexpr PicturesSeen Seen = PicturesSeen::First;
    static constexpr std::array<ControlName, 2> PageStarts = {"lstPictures", "txtMilliseconds"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 3> Orders = {u"forward", u"back", u"random"};
    static constexpr std::array<TextView, 2> Starts = {u"seen", u"click"};

    BlockPictures lstPictures;     ///< without descriptions and links of their own
    Text txtDescription;           ///< of the whole
    Text txtMilliseconds = u"500"; ///< that a picture is shown, its change included, as typed
    Text cboTimes = u"0";          ///< rounds; 0 is for ever
    Text cboOrder = u"forward";    ///< one of Orders
    Text cboChange = u"cut";       ///< one of pictureChanges
    Text cboStart = u"seen";       ///< one of Starts
    Text txtWidth = u"0";          ///< pixels, as typed; 0 is as wide as the pictures
    Text txtLink;                  ///< empty for none
    Text cboTarget;
    BlockAttributes Others;
    bool operator==(const AnimationWizard&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<AnimationWizard> Animation, class Field>
void ForEachField(Animation& animation, Field&& field)
{
    field(ContentField("lstPictures"), animation.lstPictures);
    field(ContentField("txtDescription"), animation.txtDescription);
    field(CalmField("txtMilliseconds", 170, 60000), animation.txtMilliseconds);
    field(NumberField("cboTimes", 0, 10), animation.cboTimes);
    field(ChoiceField("cboOrder", AnimationWizard::Orders), animation.cboOrder);
    field(ChoiceField("cboChange", pictureChanges), animation.cboChange);
    field(ChoiceField("cboStart", AnimationWizard::Starts), animation.cboStart);
    field(NumberField("txtWidth", 0, 4000), animation.txtWidth);
    field(ContentField("txtLink"), animation.txtLink);
    field("cboTarget", animation.cboTarget);
    field(Secret("Others"), animation.Others);
}

/// The pictures, the first of which has the description and the link.
BlockContent ContentOf(const AnimationWizard& animation);

/// Takes the pictures, and description and link from the first of them.
void TakeContent(AnimationWizard& animation, BlockContent content);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const AnimationWizard& animation, int page);

/// The hint at a link without a name.
std::vector<Hint> HintsOf(const AnimationWizard& animation);

/// Mends each field as MendField() does.
void Tidy(AnimationWizard& animation);

/// Fills pictures, time, rounds, width and link from the tag of an animation applet, whose quotes
/// are no part of them; of the earlier applet's tag rounds and width alone.
void ReadTag(AnimationWizard& animation, const PastedTag& pasted);

} // namespace orvane
