#include "delivery/recent_servers.h"

#include "core/numbers.h"

namespace orvane {

namespace {

constexpr int serverCount = 5;

Text ServerKey(int number)
{
    return u"Server" + NumberToText(number);
}

Text UsernameKey(int number)
{
    return u"Username" + NumberToText(number);
}

Text Stored(const Settings& settings, TextView key)
{
    return settings.Get(InSection(settingSections::servers, key));
}

void Store(Settings& settings, TextView key, TextView value)
{
    settings.Put(InSection(settingSections::servers, key), value);
}

} // namespace

RecentServers GetRecentFTP(const Settings& settings)
{
    RecentServers recent{.ServerName = Stored(settings, ServerKey(1)),
                         .Username = Stored(settings, UsernameKey(1))};
    for (int i = 1; i <= serverCount; ++i)
        if (Text server = Stored(settings, ServerKey(i)); !server.empty())
            recent.Servers.push_back(std::move(server));
    return recent;
}

void PutRecentFTP(Settings& settings, TextView server, TextView username)
{
    // An empty name is found in the first empty slot, so it is stored only when all five are full.
    if (UsernameFor(settings, server))
        return;
    for (int j = serverCount; j >= 2; --j) {
        Store(settings, ServerKey(j), Stored(settings, ServerKey(j - 1)));
        Store(settings, UsernameKey(j), Stored(settings, UsernameKey(j - 1)));
    }
    Store(settings, ServerKey(1), server);
    Store(settings, UsernameKey(1), username);
}

std::optional<Text> UsernameFor(const Settings& settings, TextView server)
{
    for (int i = 1; i <= serverCount; ++i)
        if (Stored(settings, ServerKey(i)) == server)
            return Stored(settings, UsernameKey(i));
    return std::nullopt;
}

} // namespace orvane
