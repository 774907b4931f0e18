#pragma once

#include "disk/file_handle.h"
#include "disk/recovery_copy.h"

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

class Leftovers;

/// Writes files in place that cannot be replaced by a new file. A copy of the old bytes, the
/// recovery copy, is kept until the writing is done. It lies
/// - beside the file, as ".orvane-«inode».recovery", or, where no file may be created there,
/// - in the user's state folder, as ".orvane-«device»-«inode».recovery",
/// with hexadecimal numbers. A copy that is found later means that its writer was killed: the old
/// bytes are put back, unless all new ones are there. When the file holds anything else than a
/// mixture of old and new bytes, or the copy is incomplete, the file stays as it is and ".kept", or
/// ".kept-2" and so on, is added to the copy's name. A copy counts only if it belongs to this user,
/// to the file's owner or to the superuser.
class InPlaceWriter
{
public:
    /// `stateFolder` ends in "/" and is created when it is needed; an empty one means that there is
    /// none. `leftovers` must outlive the object.
    InPlaceWriter(SystemCalls& calls, Leftovers& leftovers, std::string stateFolder);

    /// Clears up what a killed writer left of the file at `path`, links followed; `status` is the
    /// status of that file. permission_denied while the writer still runs.
    [[nodiscard]] std::error_code Restore(const std::string& path, const FileStatus& status) const;

    /// Makes the file, which is open for writing, hold these bytes. After a failure it holds the
    /// old ones, at once or after the next Restore(). permission_denied when no recovery copy may
    /// be kept anywhere, or while another program writes the file; operation_canceled when the file
    /// does not hold `expected`.
    [[nodiscard]] std::error_code Write(const FileHandle& file, const std::string& path,
                                        std::string_view bytes,
                                        std::optional<std::string_view> expected) const;

private:
    std::string PlaceInState(const FileStatus& status) const;
    std::error_code Keep(const RecoveryCopy& copy, const FileStatus& status,
                         std::string& place) const;
    std::error_code PutCopy(const std::string& place, const std::string& bytes) const;
    void RemoveCopy(const std::string& place) const;
    void SetAside(const std::string& place) const;
    std::error_code RestoreFrom(const std::string& place, const std::string& path,
                                const FileStatus& status) const;
    std::error_code PutBack(const FileHandle& kept, const std::string& place,
                            const std::string& path) const;

    SystemCalls& m_calls;
    Leftovers& m_leftovers;
    std::string m_stateFolder;
};

} // namespace orvane
