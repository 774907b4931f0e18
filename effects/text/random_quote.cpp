#include "effects/text/random_quote.h"

namespace orvane {

Look LookOf(const RandomQuote& quote)
{
    return {{.Control = "txtSeconds", .IsEnabled = quote.cboRule == RandomQuote::Rules.back()}};
}

std::optional<Complaint> CheckPage(const RandomQuote& quote, int page)
{
    return page == 0 ? CheckRows(quote.lstQuotes, "lstQuotes") : CheckNumbers(quote, page);
}

} // namespace orvane
