#pragma once

#include "core/settings.h"

#include <optional>
#include <vector>

namespace orvane {

/// What the file-transfer panel shows when it opens.
struct RecentServers
{
    std::vector<Text> Servers; ///< the list of `cmbServerName`, newest first
    Text ServerName;           ///< the text of `cmbServerName`
    Text Username;             ///< the text of `Text3(0)`
    bool operator==(const RecentServers&) const = default;
};

/// The stored servers, with the newest and its user name for the fields; empty when none is stored.
RecentServers GetRecentFTP(const Settings& settings);

/// Stores a server as the newest of five and drops the oldest; does nothing for one that is stored
/// already, even with another user name.
void PutRecentFTP(Settings& settings, TextView server, TextView username);

/// The user name stored for a server, whose name must match in upper and lower case; nothing for
/// one that is not stored.
std::optional<Text> UsernameFor(const Settings& settings, TextView server);

} // namespace orvane
