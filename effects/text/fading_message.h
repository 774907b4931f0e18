#pragma once

#include "core/complaint.h"
#include "core/pasted_tag.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Fading Message window; the defaults are those of a fresh window.
struct FadingMessage
{
    static constexpr std::array Kinds = {EffectKind::FadingMessage};
    static constexpr TextView Block = u"message-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"lstMessages", "txtSeconds",
                                                              "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 2> Orders = {u"forward", u"random"};
    static constexpr std::array<TextView, 3> Alignments = {u"left", u"center", u"right"};

    BlockRows lstMessages;
    Text txtSeconds = u"4";     ///< that a message is shown, as typed
    Text txtFadeSeconds = u"1"; ///< of each fading, out or in, as typed
    Text cboOrder = u"forward"; ///< one of Orders
    Text cboTimes = u"0";       ///< rounds; 0 is for ever
    TextLook Look;
    Text cboAlign = u"center"; ///< one of Alignments
    Text txtWidth = u"0";      ///< pixels, as typed; 0 is as wide as the message's place
    Text cboTarget;            ///< of all links
    BlockAttributes Others;
    bool operator==(const FadingMessage&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<FadingMessage> Message, class Field>
void ForEachField(Message& message, Field&& field)
{
    field(ContentField("lstMessages"), message.lstMessages);
    field(CalmField("txtSeconds", 1, 60), message.txtSeconds);
    field(CalmField("txtFadeSeconds", 0.2, 10), message.txtFadeSeconds);
    field(ChoiceField("cboOrder", FadingMessage::Orders), message.cboOrder);
    field(NumberField("cboTimes", 0, 10), message.cboTimes);
    ForEachField(message.Look, field);
    field(ChoiceField("cboAlign", FadingMessage::Alignments), message.cboAlign);
    field(NumberField("txtWidth", 0, 4000), message.txtWidth);
    field("cboTarget", message.cboTarget);
    field(Secret("Others"), message.Others);
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const FadingMessage& message, int page);

/// Fills the effect from the tag of an earlier applet: messages and their links, alignment, font
/// and width.
void ReadTag(FadingMessage& message, const PastedTag& tag);

} // namespace orvane
