#pragma once

#include "core/setting_keys.h"
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

    /// The same for a key of core/setting_keys.h, with its own `Otherwise`.
    Text Get(const SettingKey& key) const
    {
        return Get(key.Section, key.Key, key.Otherwise, key.Application);
    }
    void Put(const SettingKey& key, TextView value)
    {
        Put(key.Section, key.Key, value, key.Application);
    }
};

} // namespace orvane
