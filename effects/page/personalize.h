#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"
#include "services/hints.h"
#include "services/text_look.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// What the author enters on the window of Personalize your Web page; the defaults are those of a
/// fresh window.
struct Personalize
{
    static constexpr std::array Kinds = {EffectKind::Personalize};
    static constexpr TextView Block = u"greeting-1";
    static constexpr std::array<ControlName, 2> PageStarts = {"txtQuestion", "chkVisits"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array<TextView, 4> DateStyles = {u"full", u"long", u"medium", u"short"};
    static constexpr std::array<TextView, 3> Asks = {u"line", u"button", u"no"};
    /// Stands for the visitor's name in a greeting.
    static constexpr TextView Name = u"«name»";

    Text txtQuestion = u"What is your name?";
    Text txtGreeting = u"Hello, «name»!"; ///< with Name in it
    BlockParagraphs txtNamelessGreeting;  ///< for visitors without a name
    Text cboAsk = u"line";                ///< one of Asks: how a visitor is asked
    bool chkNotMe = true;                 ///< a link that forgets the name
    Text txtForgetAfter = u"365";         ///< days without a visit, as typed
    bool chkVisits = false;               ///< shows how many there were
    bool chkLastVisit = false;            ///< shows when the last one was
    Text cboDateStyle = u"long";          ///< one of DateStyles
    TextLook Look;
    BlockAttributes Others;
    bool operator==(const Personalize&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<Personalize> Personal, class Field>
void ForEachField(Personal& personal, Field&& field)
{
    field("txtQuestion", personal.txtQuestion);
    field("txtGreeting", personal.txtGreeting);
    field(ContentField("txtNamelessGreeting"), personal.txtNamelessGreeting);
    field(ChoiceField("cboAsk", Personalize::Asks), personal.cboAsk);
    field("chkNotMe", personal.chkNotMe);
    field(NumberField("txtForgetAfter", 1, 3650), personal.txtForgetAfter);
    field("chkVisits", personal.chkVisits);
    field("chkLastVisit", personal.chkLastVisit);
    field(ChoiceField("cboDateStyle", Personalize::DateStyles), personal.cboDateStyle);
    ForEachField(personal.Look, field);
    field(Secret("Others"), personal.Others);
}

/// The style of the date is enabled where one is shown.
Look LookOf(const Personalize& personal);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const Personalize& personal, int page);

/// Words on a greeting in which no name is shown.
std::vector<Hint> HintsOf(const Personalize& personal);

} // namespace orvane
