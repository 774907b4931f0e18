#pragma once

#include "disk/in_place_writer.h"
#include "disk/replacement_file.h"

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Files read and written whole. Every writing makes a new file beside the old one and renames it
/// to the old one's name; where a new file would lose something or is not allowed, Replace() writes
/// in place, guarded by a recovery copy: a file with several hard links or an access list, one
/// whose owner this user may not set, one in a folder that this user may not write.
class WholeFiles
{
public:
    /// `stateFolder` is that of InPlaceWriter.
    WholeFiles(SystemCalls& calls, std::string stateFolder);

    /// Opens a file for reading, links followed; `file` holds none yet.
    [[nodiscard]] std::error_code Open(std::string path, FileHandle& file) const;

    /// The whole content, links followed; not_enough_memory when it is more than 512 MB.
    [[nodiscard]] std::error_code Read(const std::string& path, std::string& bytes) const;

    /// operation_canceled unless the path leads to a file that is not the file `other` and holds
    /// exactly these bytes.
    [[nodiscard]] std::error_code MustBeCopy(const std::string& path, const std::string& other,
                                             std::string_view bytes) const;

    /// Makes the file, links followed, hold these bytes. operation_canceled, with the file as it
    /// was, when it does not hold what is expected until directly before.
    [[nodiscard]] std::error_code Replace(std::string path, std::string_view bytes,
                                          std::optional<std::string_view> expected);

    /// Puts a new file with this content under the name itself, in the place of a link or of a file
    /// that may be written. It has the permissions of the file `like`, else of the file whose place
    /// it takes.
    [[nodiscard]] std::error_code PutNew(const std::string& path, const Filling& fill,
                                         const std::string& like);

private:
    std::error_code FollowLinks(std::string& path) const;
    std::error_code LookAgain(const std::string& path,
                              std::optional<std::string_view> expected) const;
    std::error_code PutWhereNoneIs(const std::string& path, const Filling& fill);

    SystemCalls& m_calls;
    InPlaceWriter m_inPlace;
};

} // namespace orvane
