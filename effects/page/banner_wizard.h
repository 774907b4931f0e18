#pragma once

#include "core/complaint.h"
#include "core/pasted_tag.h"
#include "services/block_fields.h"
#include "services/picture_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters in the Banner/Billboard Wizard; the defaults are those of a fresh window.
struct BannerWizard
{
    static constexpr std::array Kinds = {EffectKind::BannerWizard};
    static constexpr TextView Block = u"banner-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"lstPictures", "txtSeconds",
                                                              "txtWidth"};
    static constexpr int Pages = PageStarts.size();

    BlockPictures lstPictures;
    Text txtSeconds = u"5";       ///< from change to change, as typed
    Text cboTransition = u"fade"; ///< one of pictureChanges
    Text txtDuration = u"1";      ///< seconds of a change, as typed
    bool chkRandomFirst = false;
    bool chkPauseOnHover = true;
    bool chkArrows = true; ///< buttons for the one before and the next one
    PictureSize Size;
    Text cboTarget; ///< of all links
    BlockAttributes Others;
    bool operator==(const BannerWizard&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<BannerWizard> Banner, class Field>
void ForEachField(Banner& banner, Field&& field)
{
    field(ContentField("lstPictures"), banner.lstPictures);
    field(CalmField("txtSeconds", 2, 600), banner.txtSeconds);
    field(ChoiceField("cboTransition", pictureChanges), banner.cboTransition);
    field(CalmField("txtDuration", 0.2, 5), banner.txtDuration);
    field("chkRandomFirst", banner.chkRandomFirst);
    field("chkPauseOnHover", banner.chkPauseOnHover);
    field("chkArrows", banner.chkArrows);
    ForEachField(banner.Size, field);
    field("cboTarget", banner.cboTarget);
    field(Secret("Others"), banner.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const BannerWizard& banner, int page);

/// Fills pictures with their links, time, target and size from the tag of an animation applet,
/// whose quotes are no part of them.
void ReadTag(BannerWizard& banner, const PastedTag& pasted);

} // namespace orvane
