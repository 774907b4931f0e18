#pragma once

#include "disk/file_handle.h"
#include "disk/recovery_copy.h"

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Writing in place, for files that no new file may replace, with a copy of the old bytes kept
/// until it is done. The copy lies
/// - beside the file, as ".orvane-«inode».recovery", or, where no file may be created there,
/// - in the user's state folder, as ".orvane-«device»-«inode».recovery",
/// the numbers hexadecimal. One found later means that its writer was killed: the old bytes are put
/// back, unless the new ones are all there. If somebody else has written the file since, it stays
/// as it is and the copy is set aside as "….kept". A copy counts only if it belongs to this user,
/// to the file's owner or to the superuser.
class InPlaceWriter
{
public:
    /// `stateFolder` ends in "/" and is created when it is needed; empty for none.
    InPlaceWriter(SystemCalls& calls, std::string stateFolder);

    /// Clears up what a killed writer left of the file at `path`, links followed; `status` is that
    /// of the file. permission_denied while its writer lives.
    [[nodiscard]] std::error_code Restore(const std::string& path, const FileStatus& status) const;

    /// Makes the file, open for writing, hold these bytes; on failure it holds the old ones, now or
    /// after the next Restore(). permission_denied when no copy may be kept anywhere, or while
    /// another program writes the file; operation_canceled when it does not hold `expected`.
    [[nodiscard]] std::error_code Write(const FileHandle& file, const std::string& path,
                                        std::string_view bytes,
                                        std::optional<std::string_view> expected) const;

private:
    std::string PlaceInState(const FileStatus& status) const;
    std::error_code Keep(const RecoveryCopy& copy, const FileStatus& status,
                         std::string& place) const;
    std::error_code PutCopy(const std::string& place, const std::string& bytes) const;
    void RemoveCopy(const std::string& place) const;
    std::error_code RestoreFrom(const std::string& place, const std::string& path,
                                const FileStatus& status) const;
    std::error_code PutBack(const FileHandle& kept, const std::string& place,
                            const std::string& path) const;

    SystemCalls& m_calls;
    std::string m_stateFolder;
};

} // namespace orvane
