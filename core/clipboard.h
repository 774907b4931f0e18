#pragma once

#include "core/text.h"

namespace orvane {

/// The desktop's clipboard.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    /// Clears the clipboard, then puts the text on it.
    virtual void Put(TextView text) = 0;
};

} // namespace orvane
