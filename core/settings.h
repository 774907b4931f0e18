#pragma once

#include "core/text.h"

namespace orvane {

/// Texts that outlive the run, stored under application, section and key.
class Settings
{
public:
    virtual ~Settings() = default;

    /// The stored text, or `otherwise` when there is none or the store cannot be read.
    virtual Text Get(TextView section, TextView key, TextView otherwise,
                     TextView application = u"Orvane") const = 0;

    /// Stores the text at once; a store that cannot be written keeps what it had.
    virtual void Put(TextView section, TextView key, TextView value,
                     TextView application = u"Orvane") = 0;
};

} // namespace orvane
