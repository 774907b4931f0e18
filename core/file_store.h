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

/// What is known of a file without reading it. For a link, size and time are those of the file that
/// it leads to.
struct FileFacts
{
    std::uint64_t Size = 0;   ///< in bytes
    std::int64_t Written = 0; ///< when the content was last written, in nanoseconds since 1970
    std::uint64_t Number = 0; ///< what the disk knows it by; a file put in its place has another
    bool IsLink = false;      ///< the name itself is a link
    bool operator==(const FileFacts&) const = default;
};

/// All access to files and folders. Paths are texts; contents are bytes as they lie in the file.
class FileStore
{
public:
    virtual ~FileStore() = default;

    /// True when the path leads to a regular file that can be opened for reading.
    virtual bool FileExists(TextView path) const = 0;

    /// True when a file or a link lies under the name, even one that cannot be read or leads
    /// nowhere.
    virtual bool IsTaken(TextView path) const = 0;

    /// True when the path leads to a file that is not the file `other` and holds exactly `bytes`;
    /// the fault when one of the two cannot be looked at.
    virtual Outcome<bool> IsCopyOf(TextView path, TextView other, std::string_view bytes) const = 0;

    /// The facts of the file; nothing when the path leads to no regular file, or the disk does not
    /// tell.
    virtual std::optional<FileFacts> Facts(TextView path) const = 0;

    /// The whole content of a file. A missing file is FileNotFound, a missing folder PathNotFound,
    /// one of more than 512 MB OutOfMemory.
    virtual Outcome<std::string> Read(TextView path) const = 0;

    /// What Read() gives, for a file itself: a link of that name is BadFileName.
    virtual Outcome<std::string> ReadItself(TextView path) const = 0;

    /// Makes the file hold these bytes; a missing file is created, but not its folder. Whatever
    /// fails, even the machine, the next Read() gives the old bytes or the new ones. Links are
    /// followed, permissions kept.
    [[nodiscard]] virtual Done Replace(TextView path, std::string_view bytes) = 0;

    /// Does what Replace() does with `bytes` and, behind them, `rest`, provided that the file still
    /// holds `old`. Gives false, with the file as another program saved it last, when it holds
    /// anything else or is gone. Where the
    /// file system can exchange the names of two files, no file that another program saves
    /// meanwhile is lost; elsewhere the file is looked at directly before it is written, and what
    /// is saved between the two is lost. What a program writes into a file that it opened before
    /// may be lost anywhere.
    [[nodiscard]] virtual Outcome<bool> Exchange(TextView path, std::string_view old,
                                                 std::string_view bytes,
                                                 std::string_view rest = {}) = 0;

    /// Puts a new file with these bytes under the name. A link of that name is replaced, not
    /// followed; a replaced file that has other names keeps its content under them. Nobody but its
    /// owner, who may read and write it, gets more rights to the new file than to the file `like`
    /// or, where that is empty, to the file that it replaces, which this user must be allowed to
    /// write then.
    [[nodiscard]] virtual Done PutNew(TextView path, std::string_view bytes,
                                      TextView like = {}) = 0;

    /// Puts a new file with these bytes under the name, as PutNew() does, which nobody but its
    /// owner may ever look into.
    [[nodiscard]] virtual Done PutPrivate(TextView path, std::string_view bytes) = 0;

    /// Puts a new file with these bytes under a name that is free, links followed, with the rights
    /// that PutNew() gives it. Gives false when the name is taken.
    [[nodiscard]] virtual Outcome<bool> PutIfFree(TextView path, std::string_view bytes,
                                                  TextView like) = 0;

    /// Puts a new file with the content of `from` under the name `to`, as PutNew() would; does
    /// nothing when both are one file. `progress` is told how many bytes are copied; when it gives
    /// false, the result is Cancelled, with `to` as it was.
    [[nodiscard]] virtual Done Copy(TextView from, TextView to, Progress* progress = nullptr) = 0;

    /// Removes a file; a missing one is FileNotFound.
    [[nodiscard]] virtual Done Remove(TextView path) = 0;

    /// Creates one folder whose parent exists.
    [[nodiscard]] virtual Done MakeFolder(TextView path, Access access = Access::AsUsual) = 0;

    /// Locks the folder until the result is destroyed: another program that calls this for the same
    /// folder waits until then, but a second at most. Null when the folder cannot be locked.
    [[nodiscard]] virtual std::shared_ptr<const void> LockFolder(TextView folder) = 0;

    /// The names of the files in a folder, links to files included, sorted ignoring case; empty
    /// when it cannot be read.
    virtual std::vector<Text> Files(TextView folder) const = 0;

    /// The names of the folders in a folder, links to folders included, sorted ignoring case; the
    /// fault when it cannot be read.
    virtual Outcome<std::vector<Text>> SubFolders(TextView folder) const = 0;

    /// True when the path is a folder.
    virtual bool FolderExists(TextView path) const = 0;
};

/// Makes a folder and those above it that are missing; does nothing for a folder that exists and
/// for an empty path.
[[nodiscard]] Done MakeFolders(FileStore& files, TextView path, Access access = Access::AsUsual);

} // namespace orvane
