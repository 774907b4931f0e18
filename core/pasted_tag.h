#pragma once

#include "core/text.h"

namespace orvane {

/// How a value in quotes is read out of a pasted tag.
enum class Quotes
{
    Kept,     ///< the leading quote stays, and what has no quotes runs on to the next quote
    TakenOff, ///< the value alone
};

/// A tag that an author pasted, to fill its wizard from.
struct PastedTag
{
    Text Whole;
    Text AppletTextAfterCODE; ///< five letters behind CODE=
    Text AppletText;          ///< eight letters behind CODE=
    Quotes Reading = Quotes::Kept;
};

} // namespace orvane
