#pragma once

#include "core/complaint.h"
#include "core/look.h"
#include "services/block_fields.h"
#include "services/text_look.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Random Quote window; the defaults are those of a fresh window.
struct RandomQuote
{
    static constexpr std::array Kinds = {EffectKind::RandomQuote};
    static constexpr TextView Block = u"quote-1";
    static constexpr std::array<ControlName, 3> PageStarts = {"lstQuotes", "cboRule", "cboFont"};
    static constexpr int Pages = PageStarts.size();
    static constexpr std::array ColorPairs = {ColorPair{"cmdTextColor", "cmdBackColor"}};
    static constexpr std::array<TextView, 4> Rules = {u"visit", u"day", u"chance", u"seconds"};

    QuoteRows lstQuotes;
    Text cboRule = u"visit"; ///< one of Rules: when another quote comes
    Text txtSeconds = u"8";  ///< that a quote is shown by the last of the rules, as typed
    bool chkQuotationMarks = true;
    Text cboAlign = u"left"; ///< one of textAlignments
    Text txtWidth = u"0";    ///< pixels, as typed; 0 is as wide as the quote's place
    TextLook Look;
    Text BackColor; ///< empty: as on the page
    BlockAttributes Others;
    bool operator==(const RandomQuote&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<RandomQuote> Quote, class Field>
void ForEachField(Quote& quote, Field&& field)
{
    field(ContentField("lstQuotes"), quote.lstQuotes);
    field(ChoiceField("cboRule", RandomQuote::Rules), quote.cboRule);
    field(CalmField("txtSeconds", 2, 600), quote.txtSeconds);
    field("chkQuotationMarks", quote.chkQuotationMarks);
    field(ChoiceField("cboAlign", textAlignments), quote.cboAlign);
    field(NumberField("txtWidth", 0, 4000), quote.txtWidth);
    ForEachField(quote.Look, field);
    field(ColorField("cmdBackColor"), quote.BackColor);
    field(Secret("Others"), quote.Others);
}

/// The seconds are enabled for the rule that counts them.
Look LookOf(const RandomQuote& quote);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const RandomQuote& quote, int page);

} // namespace orvane
