#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace orvane {

/// Copies several files with one progress box, in which the author can cancel them all. The box may
/// block all other windows until this object is destroyed, so destroy it before telling the author
/// how the copying went.
class FollowedCopies : private Progress
{
public:
    /// `sources` are the full paths of the files that will be copied, for the progress bar; a
    /// missing one counts as empty. `folder` is named in the box.
    FollowedCopies(FileStore& files, Dialogs& dialogs, TextView folder,
                   const std::vector<Text>& sources);

    /// Copies a file as FileStore::Copy() does; gives Cancelled when the author has cancelled.
    [[nodiscard]] Done Copy(TextView source, TextView destination);

    /// Whether the author has cancelled.
    bool IsCancelled() const { return m_isCancelled; }

private:
    bool GoOn(std::uint64_t done, std::uint64_t total) override;

    FileStore& m_files;
    std::uint64_t m_total = 0;   ///< bytes of all files
    std::uint64_t m_before = 0;  ///< bytes of the files that were copied already
    std::uint64_t m_current = 0; ///< bytes copied of the file that is being copied
    bool m_isCancelled = false;
    std::unique_ptr<Progress> m_shown;
};

} // namespace orvane
