#pragma once

#include "effects/text/random_quote.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Random Quote.
class RandomQuoteForm : public EffectForm<RandomQuote>
{
public:
    explicit RandomQuoteForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
