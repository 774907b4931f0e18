#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"
#include "services/picture_look.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the transitions change; the numbers are those of `OrvaneCore::TransitionsImageMode`.
enum class TransitionsOf
{
    Texts = 0,
    Images = 1,
};

/// What the author enters on the window of Text Transitions, which makes Image Transitions as well;
/// the defaults are those of a fresh window.
struct TextTransitions
{
    static constexpr std::array Kinds = {EffectKind::TextTransitions};
    static constexpr TextView Block = u"texts-1";
    static constexpr TextView ImageBlock = u"images-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"TransitionsImageMode",
                                                              "cboTransition", "cboFont"};
    static constexpr int Pages = PageStarts.size();

    TransitionsOf TransitionsImageMode = TransitionsOf::Texts;
    BlockRows lstMessages;      ///< of texts alone
    BlockPictures lstPictures;  ///< of images alone
    Text cboTransition = u"23"; ///< one of pictureTransitions
    Text txtSeconds = u"4";     ///< from change to change, as typed
    Text txtDuration = u"1";    ///< seconds of a change, as typed
    Text cboTimes = u"0";       ///< rounds; 0 is for ever
    TextLook Look;              ///< of texts alone
    PictureSize Size;           ///< of images alone
    Text cboTarget;             ///< of all links
    BlockAttributes Others;
    bool operator==(const TextTransitions&) const = default;

    /// A fresh effect for texts, and one for images.
    static std::array<TextTransitions, 2> Faces();
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<TextTransitions> Transitions, class Field>
void ForEachField(Transitions& transitions, Field&& field)
{
    field("TransitionsImageMode", transitions.TransitionsImageMode);
    field(ContentField("lstMessages"), transitions.lstMessages);
    field(ContentField("lstPictures"), transitions.lstPictures);
    field(ChoiceField("cboTransition", pictureTransitions), transitions.cboTransition);
    field(CalmField("txtSeconds", 1, 60), transitions.txtSeconds);
    field(CalmField("txtDuration", 0.2, 5), transitions.txtDuration);
    field(NumberField("cboTimes", 0, 10), transitions.cboTimes);
    ForEachField(transitions.Look, field);
    ForEachField(transitions.Size, field);
    field("cboTarget", transitions.cboTarget);
    field(Secret("Others"), transitions.Others);
}

/// The kind of block that shows texts or images.
TextView BlockKindOf(const TextTransitions& transitions);

/// The texts or the images.
BlockContent ContentOf(const TextTransitions& transitions);

/// Takes them from there.
void TakeContent(TextTransitions& transitions, BlockContent content);

/// The lists and rows of the mode.
Look LookOf(const TextTransitions& transitions);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const TextTransitions& transitions, int page);

/// Mends each field as MendField() does; those of the other mode are as in a fresh window.
void Tidy(TextTransitions& transitions);

} // namespace orvane
