#pragma once

#include "disk/in_place_writer.h"
#include "disk/replacement_file.h"

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Reads and writes whole files. A file is written as a new file in the same folder, which is then
/// renamed to its name. Where a new file would lose something or is not allowed, Replace() writes
/// in place instead, with a recovery copy: a file with several hard links or an access control
/// list, one whose owner this user may not set, one in a folder where this user may create nothing.
class WholeFiles
{
public:
    /// As for InPlaceWriter.
    WholeFiles(SystemCalls& calls, std::string stateFolder);

    /// Opens a file for reading, links followed, after InPlaceWriter::Restore(). Expects a `file`
    /// that has nothing open.
    [[nodiscard]] std::error_code Open(std::string path, FileHandle& file) const;

    /// The whole content, links followed; not_enough_memory when it is more than 512 MB.
    [[nodiscard]] std::error_code Read(const std::string& path, std::string& bytes) const;

    /// The same for a file itself; too_many_symbolic_link_levels when the path is a link.
    [[nodiscard]] std::error_code ReadItself(const std::string& path, std::string& bytes) const;

    /// No error when the path leads to a file that is not the file `other` and holds exactly these
    /// bytes; operation_canceled when it is that file or holds other bytes.
    [[nodiscard]] std::error_code MustBeCopy(const std::string& path, const std::string& other,
                                             std::string_view bytes) const;

    /// Makes the file, links followed, hold this content; a missing file is created unless
    /// something is `expected`. operation_canceled when it does not hold what is expected: for a
    /// new file as ReplacementFile::Put() tells it, for one written in place directly before.
    [[nodiscard]] std::error_code Replace(std::string path, Pieces content,
                                          std::optional<std::string_view> expected);

    /// Puts a new file with this content under the name itself, in place of a link or of a file. It
    /// has the permissions of the file `like`; when that is empty, of the file that it replaces,
    /// which this user must be allowed to write then.
    [[nodiscard]] std::error_code PutNew(const std::string& path, const Filling& fill,
                                         const std::string& like);

    /// The same for a file that is its owner's alone.
    [[nodiscard]] std::error_code PutPrivate(const std::string& path, const Filling& fill);

    /// Puts a new file with this content and the permissions of `like` under a free name, links
    /// followed; operation_canceled when the name is taken.
    [[nodiscard]] std::error_code PutIfFree(std::string path, const Filling& fill,
                                            const std::string& like);

private:
    std::error_code FollowLinks(std::string& path) const;
    std::error_code OpenFollowed(std::string& path, int flags, FileHandle& file) const;
    std::error_code PutOver(ReplacementFile& file, const std::string& path, const Filling& fill,
                            const FileHandle& old, const std::error_code& missing);
    std::error_code PutWhereNoneIs(const std::string& path, const Filling& fill);

    SystemCalls& m_calls;
    Leftovers m_leftovers;
    InPlaceWriter m_inPlace;
    mutable FileStatus m_lastRead{}; ///< of the file that was read last, right before
};

} // namespace orvane
