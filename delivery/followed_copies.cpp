#include "delivery/followed_copies.h"

#include <utility>

namespace orvane {

FollowedCopies::FollowedCopies(FileStore& files, Dialogs& dialogs, TextView folder,
                               const std::vector<Text>& sources)
    : m_files(files), m_shown(dialogs.FollowWork(Join({u"Copying files to ", folder})))
{
    for (const Text& source : sources)
        m_total += files.Facts(source).value_or(FileFacts()).Size;
}

Done FollowedCopies::Copy(TextView source, TextView destination)
{
    const Done done = m_files.Copy(source, destination, this);
    m_before += std::exchange(m_current, 0);
    return done;
}

bool FollowedCopies::GoOn(std::uint64_t done, std::uint64_t)
{
    m_current = done;
    m_isCancelled = m_isCancelled || !m_shown->GoOn(m_before + done, m_total);
    return !m_isCancelled;
}

} // namespace orvane
