#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"

#include <vector>

namespace orvane {

/// The copying of several files, which the author follows as one work and can end. It stands over
/// all other windows for as long as it lives, so it ends before the author is told how it went.
class FollowedCopies : private Progress
{
public:
    /// `sources` are the files that will be copied; missing ones do no harm.
    FollowedCopies(FileStore& files, Dialogs& dialogs, TextView folder,
                   const std::vector<Text>& sources);

    /// Does what FileStore::Copy() does; Cancelled once the author has ended the work.
    [[nodiscard]] Done Copy(TextView source, TextView destination);

    /// Whether the author has ended the work.
    bool IsCancelled() const { return m_isCancelled; }

private:
    bool GoOn(std::uint64_t done, std::uint64_t total) override;

    FileStore& m_files;
    std::uint64_t m_total = 0;
    std::uint64_t m_before = 0; ///< bytes of the files that were copied already
    std::uint64_t m_current = 0;
    bool m_isCancelled = false;
    std::unique_ptr<Progress> m_shown;
};

} // namespace orvane
