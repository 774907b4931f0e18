#pragma once

#include "disk/file_handle.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Puts the content into a new file that is open for writing.
using Filling = std::function<std::error_code(const FileHandle& file)>;

/// The filling with these bytes, which are borrowed.
Filling FillingWith(std::string_view bytes);

/// Begins every name that the file store uses for itself.
inline constexpr std::string_view ownNameStart = ".orvane-";

/// Whether this is the name of a ReplacementFile's temporary: ".orvane-", 16 hexadecimal digits,
/// ".tmp".
bool IsTemporaryName(std::string_view name);

/// Creates a folder with `mode` less the umask, synced with its parent; nothing is left on failure.
[[nodiscard]] std::error_code MakeFolder(SystemCalls& calls, const std::string& path, mode_t mode);

/// Whether a call was refused for the place or the rights, so that another way may be tried.
bool IsRefusal(const std::error_code& error);

/// A whole new file that takes the place of a path in one step: written under a hidden name in the
/// same folder, synced, renamed to the path, the folder synced. The hidden name cannot be guessed
/// and is locked while its writer lives; one that a killed program left behind is removed by the
/// next ReplacementFile in that folder.
class ReplacementFile
{
public:
    /// A file with the mode of a newly created one: `mode` less the umask.
    ReplacementFile(SystemCalls& calls, std::string path, mode_t mode);

    /// What a file has from the one that it is like.
    enum class Rights
    {
        All,         ///< owner, group and mode, or nothing is put
        Permissions, ///< what FileHandle::TakePermissionsOf() takes
    };

    /// A file with the rights of another.
    ReplacementFile(SystemCalls& calls, std::string path, const FileStatus& like, Rights rights);

    /// Asked directly before the file takes its place; an error stops it.
    using LastLook = std::function<std::error_code()>;

    /// Puts a file with this content in its place. No temporary file is left on failure; a folder
    /// that is missing gives not_a_directory.
    [[nodiscard]] std::error_code Put(const Filling& fill, const LastLook& look = {});

    /// Whether the new file stands in its place, which it may after a failure of the last sync.
    bool IsInPlace() const { return m_isInPlace; }

private:
    std::error_code PutThrough(FileHandle& file, const std::string& temporary, const Filling& fill,
                               const LastLook& look);
    std::error_code TakeRights(const FileHandle& file) const;
    void RemoveLeftovers(const std::string& folder) const;

    SystemCalls& m_calls;
    std::string m_path;
    mode_t m_mode;
    std::optional<FileStatus> m_like;
    Rights m_rights = Rights::All;
    bool m_isInPlace = false;
};

} // namespace orvane
