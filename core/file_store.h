#pragma once

#include "core/fault.h"
#include "core/progress.h"
#include "core/text.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// Who may look into a folder that is made.
enum class Access
{
    AsUsual,
    OwnerAlone,
};

/// What is known of a file without reading it; of what a link leads to.
struct FileFacts
{
    std::uint64_t Size = 0;   ///< in bytes
    std::int64_t Written = 0; ///< when the content came, in seconds since 1970
    bool IsLink = false;      ///< the name itself is a link
    bool operator==(const FileFacts&) const = default;
};

/// The one door to the disk. Paths are texts; contents are bytes as they lie in the file.
class FileStore
{
public:
    virtual ~FileStore() = default;

    /// True when the path can be opened for reading and is no folder.
    virtual bool FileExists(TextView path) const = 0;

    /// True when a file or a link lies under the name, even one that cannot be read or leads
    /// nowhere.
    virtual bool IsTaken(TextView path) const = 0;

    /// True when the path leads to a file that is not the file `other` and holds exactly `bytes`.
    virtual Outcome<bool> IsCopyOf(TextView path, TextView other, std::string_view bytes) const = 0;

    /// Nothing when the path leads to no file, or the disk does not tell.
    virtual std::optional<FileFacts> Facts(TextView path) const = 0;

    /// The whole content of a file. A missing file is FileNotFound, a missing folder PathNotFound,
    /// one of more than 512 MB OutOfMemory.
    virtual Outcome<std::string> Read(TextView path) const = 0;

    /// Makes the file hold these bytes: at every moment, and after any failure, it holds the old
    /// bytes or the new ones. Links are followed, permissions kept.
    [[nodiscard]] virtual Done Replace(TextView path, std::string_view bytes) = 0;

    /// Does what Replace() does if the file holds `old` until directly before; gives false, the
    /// file as it was, when it holds anything else or is gone.
    [[nodiscard]] virtual Outcome<bool> Exchange(TextView path, std::string_view old,
                                                 std::string_view bytes) = 0;

    /// Puts a new file with these bytes under the name. A link that lies there is not followed, and
    /// a file that has other names keeps its content under them. Nobody may do more with the new
    /// file than with the file `like`, or, where that is empty, the one that it takes the place of.
    [[nodiscard]] virtual Done PutNew(TextView path, std::string_view bytes,
                                      TextView like = {}) = 0;

    /// Puts a new file with the content of `from` under the name `to`, as PutNew() would; nothing
    /// is done when both are one file. Gives Cancelled, with `to` as it was, when `progress` does
    /// not want to go on.
    [[nodiscard]] virtual Done Copy(TextView from, TextView to, Progress* progress = nullptr) = 0;

    /// Removes a file; a missing one is FileNotFound.
    [[nodiscard]] virtual Done Remove(TextView path) = 0;

    /// Creates one folder whose parent exists.
    [[nodiscard]] virtual Done MakeFolder(TextView path, Access access = Access::AsUsual) = 0;

    /// Keeps other programs that call this for the folder waiting until the result is gone. Null
    /// where that cannot be done.
    [[nodiscard]] virtual std::shared_ptr<const void> Hold(TextView folder) = 0;

    /// The names of the files in a folder, links to files included, sorted ignoring case; empty
    /// when it cannot be read.
    virtual std::vector<Text> Files(TextView folder) const = 0;

    /// The names of the folders in a folder, links to folders included, sorted ignoring case; the
    /// fault when it cannot be read.
    virtual Outcome<std::vector<Text>> SubFolders(TextView folder) const = 0;

    /// True when the path is a folder.
    virtual bool FolderExists(TextView path) const = 0;
};

/// Makes a folder and those above it that are missing.
[[nodiscard]] Done MakeFolders(FileStore& files, TextView path, Access access = Access::AsUsual);

} // namespace orvane
