#pragma once

#include "core/complaint.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the Sliding Instant Message Window; the defaults are those of a fresh
/// window.
struct SlidingMessage
{
    static constexpr std::array Kinds = {EffectKind::SlidingMessage};
    static constexpr TextView Block = u"window-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"txtTitle", "cboCorner", "txtWidth"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdHeadTextColor", "cmdHeadColor"},
                                              ColorPair{"cmdTextColor", "cmdPaperColor"}};
    static constexpr std::array<TextView, 4> Corners = {u"bottom-right", u"bottom-left",
                                                        u"top-right", u"top-left"};
    static constexpr std::array<TextView, 3> HowOften = {u"load", u"session", u"day"};

    Text txtTitle = u"Message";
    BlockParagraphs txtMessage;
    Text txtLink; ///< of all of the message; empty for none
    Text cboTarget;
    Text cboCorner = u"bottom-right"; ///< one of Corners
    Text txtWaitSeconds = u"2";       ///< before it comes, as typed
    Text txtStaySeconds = u"0";       ///< as typed; 0 is until it is closed
    Text cboOnce = u"load";           ///< one of HowOften
    Text txtSound;                    ///< empty for none
    Text SoundSource;
    Text txtWidth = u"260"; ///< pixels, as typed
    Text HeadColor = u"#205080";
    Text HeadTextColor = u"#ffffff";
    Text PaperColor = u"#ffffff";
    TextLook Look;
    BlockAttributes Others;
    bool operator==(const SlidingMessage&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<SlidingMessage> Message, class Field>
void ForEachField(Message& message, Field&& field)
{
    field("txtTitle", message.txtTitle);
    field(ContentField("txtMessage"), message.txtMessage);
    field(ContentField("txtLink"), message.txtLink);
    field("cboTarget", message.cboTarget);
    field(ChoiceField("cboCorner", SlidingMessage::Corners), message.cboCorner);
    field(NumberField("txtWaitSeconds", 0, 600), message.txtWaitSeconds);
    field(NumberField("txtStaySeconds", 0, 600), message.txtStaySeconds);
    field(ChoiceField("cboOnce", SlidingMessage::HowOften), message.cboOnce);
    field("txtSound", message.txtSound);
    field(SourceField("SoundSource"), message.SoundSource);
    field(NumberField("txtWidth", 120, 1000), message.txtWidth);
    field(ColorField("cmdHeadColor"), message.HeadColor);
    field(ColorField("cmdHeadTextColor"), message.HeadTextColor);
    field(ColorField("cmdPaperColor"), message.PaperColor);
    ForEachField(message.Look, field);
    field(Secret("Others"), message.Others);
}

/// The message with its link.
BlockContent ContentOf(const SlidingMessage& message);

/// Takes both from there.
void TakeContent(SlidingMessage& message, BlockContent content);

/// The sound with which the window comes.
std::vector<BlockSound> SoundsOf(const SlidingMessage& message);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const SlidingMessage& message, int page);

/// Mends each field as MendField() does.
void Tidy(SlidingMessage& message);

} // namespace orvane
