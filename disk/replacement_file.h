#pragma once

#include "disk/file_handle.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Writes the content of a new file, which is open for writing and empty.
using Filling = std::function<std::error_code(const FileHandle& file)>;

/// The content of a file: one piece and, behind it, another, so that what stays of a large page is
/// not copied.
struct Pieces
{
    std::string_view First;
    std::string_view Second;
};

/// A Filling that writes these bytes, which it borrows.
Filling FillingWith(std::string_view bytes);
Filling FillingWith(Pieces content);

/// The start of every name that the file store uses for its own files.
inline constexpr std::string_view ownNameStart = ".orvane-";

/// Whether this is the name of a ReplacementFile's temporary: ".orvane-", 16 hexadecimal digits,
/// ".tmp".
bool IsTemporaryName(std::string_view name);

/// Creates a folder with `mode` less the umask and syncs it with its parent; a folder that cannot
/// be synced is removed again. A missing parent gives not_a_directory.
[[nodiscard]] std::error_code MakeFolder(SystemCalls& calls, const std::string& path, mode_t mode);

/// Whether a call failed because this place does not allow it (permissions, a read-only file
/// system, a mount), so that writing in another way may succeed.
bool IsRefusal(const std::error_code& error);

/// Renames a file to a name that must be free; file_exists when it is not. On a file system that
/// cannot look and rename at once, one that takes the name in between is lost.
[[nodiscard]] std::error_code RenameToFree(SystemCalls& calls, const std::string& from,
                                           const std::string& to);

/// The temporary files that killed programs left behind. A folder is looked through once, since it
/// may hold thousands of pages.
class Leftovers
{
public:
    explicit Leftovers(SystemCalls& calls) : m_calls(calls) {}

    /// Removes those in a folder that was not looked through yet; its path ends in "/".
    void RemoveFrom(const std::string& folder);

    /// Lets the folder be looked through again: this program left one itself.
    void Expect(const std::string& folder) { m_lookedThrough.erase(folder); }

private:
    SystemCalls& m_calls;
    std::set<std::string> m_lookedThrough;
};

/// A whole new file that takes the place of a path in one step: it is written under a hidden name
/// in the same folder, synced and renamed to the path, then the folder is synced. The hidden name
/// cannot be guessed, and the file is locked while its writer runs; one that a killed program left
/// behind is removed by the next program that puts a file into that folder.
class ReplacementFile
{
public:
    /// A file with the mode of a newly created one: `mode` less the umask. `leftovers` must outlive
    /// the object.
    ReplacementFile(SystemCalls& calls, Leftovers& leftovers, std::string path, mode_t mode);

    /// What the new file takes over from the file that it is like.
    enum class Rights
    {
        All,         ///< owner, group and mode; when they cannot be set, Put() fails
        Permissions, ///< as many as FileHandle::TakePermissionsOf() can set
    };

    /// A file with the rights of another.
    ReplacementFile(SystemCalls& calls, Leftovers& leftovers, std::string path,
                    const FileStatus& like, Rights rights);

    /// What must have the path when the file takes its place.
    struct Former
    {
        enum class Kind
        {
            Anything, ///< or nothing at all
            Nothing,
            File, ///< a file with these bytes
        };
        Kind Is;
        std::string_view Bytes;
        FileStatus AsRead; ///< when the file had these bytes, if that is known
    };

    /// Puts a file with this content at the path. No temporary file is left after a failure; a
    /// missing folder gives not_a_directory. operation_canceled when the path has anything else
    /// than it must have. An expected file gives way by an exchange of names: when what came out is
    /// not what was expected, it gets its name back. Where names cannot be exchanged, the bytes are
    /// looked at directly before the renaming.
    [[nodiscard]] std::error_code Put(const Filling& fill, const Former& former = {});

    /// Whether the new file is at the path. It may be so although Put() failed: the last sync comes
    /// after.
    bool IsInPlace() const { return m_isInPlace; }

private:
    std::error_code PutThrough(FileHandle& file, const std::string& temporary, const Filling& fill,
                               const Former& former);
    std::error_code TakePlace(const FileHandle& file, const std::string& temporary,
                              const Former& former);
    bool IsAsRead(const FileStatus& status) const;
    std::error_code MustHold(const std::string& path, std::string_view bytes) const;
    std::error_code Exchange(const std::string& temporary) const;
    std::error_code GiveBack(FileStatus given, const std::string& temporary);
    std::error_code TakeRights(const FileHandle& file) const;

    SystemCalls& m_calls;
    Leftovers& m_leftovers;
    std::string m_path;
    mode_t m_mode;
    std::optional<FileStatus> m_like;
    Rights m_rights = Rights::All;
    bool m_isInPlace = false;
    bool m_isLost = false; ///< the temporary name has a file that is not ours
};

} // namespace orvane
