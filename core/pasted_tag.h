#pragma once

#include "core/text.h"

namespace orvane {

/// How the values of a pasted tag are read.
enum class Quotes
{
    Kept,     ///< with its opening quote; one without quotes goes on to the next quote
    TakenOff, ///< the value alone
};

/// A tag that an author pasted, to fill its wizard from.
struct PastedTag
{
    Text Whole;
    Text AppletTextAfterCODE; ///< five characters behind CODE=
    Text AppletText;          ///< eight characters behind CODE=
    Quotes Reading = Quotes::Kept;
};

} // namespace orvane
