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

/// The servers stored so far, with the newest and its user name in the fields.
RecentServers GetRecentFTP(const Settings& settings);

/// Stores a server as the newest of five, the oldest dropping out; one that is listed already stays
/// where it is, user name included.
void PutRecentFTP(Settings& settings, TextView server, TextView username);

/// The user name stored for a server, upper and lower case told apart; nothing for one that is not
/// listed.
std::optional<Text> UsernameFor(const Settings& settings, TextView server);

} // namespace orvane
