#pragma once

#include "effects/page/random_image.h"
#include "effects/text/random_quote.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Random Quote.
class RandomQuoteForm : public EffectForm<RandomQuote>
{
public:
    explicit RandomQuoteForm(Workbench& bench, QWidget* parent = nullptr);
};

/// The window of Random Image, which is the same one with other fields.
class RandomImageForm : public EffectForm<RandomImage>
{
public:
    explicit RandomImageForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
