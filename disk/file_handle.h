#pragma once

#include "disk/system_calls.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Makes a call again for as long as a signal interrupts it; gives its last error.
template <class Call>
std::error_code Retried(Call call)
{
    std::error_code error = call();
    while (error == std::errc::interrupted)
        error = call();
    return error;
}

/// The part of a path through its last "/"; "./" when there is none.
std::string FolderOf(std::string_view path);

/// Whether both are of one file.
bool IsOneFile(const FileStatus& one, const FileStatus& other);

/// An open file or folder of a disk, closed with the object. Interrupted calls are repeated, short
/// ones continued. A failing close has no say: what must be on the disk was synced before.
class FileHandle
{
public:
    explicit FileHandle(SystemCalls& calls) : m_calls(calls) {}
    ~FileHandle();
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    /// Opens a path of any kind without waiting for anybody; expects an object that holds none yet.
    [[nodiscard]] std::error_code Open(const std::string& path, int flags, mode_t mode = 0);

    /// Opens a regular file; a folder, pipe or device gives is_a_directory.
    [[nodiscard]] std::error_code OpenRegular(const std::string& path, int flags);

    /// Opens a folder, so that it can be synced; a missing one gives not_a_directory.
    [[nodiscard]] std::error_code OpenFolder(const std::string& path);

    /// What was known of the file when it was opened.
    const FileStatus& Status() const { return m_status; }

    /// Whether the file has lost its last name since.
    [[nodiscard]] std::error_code IsRemoved(bool& removed) const;

    /// The whole content.
    [[nodiscard]] std::error_code ReadAll(std::string& bytes) const;

    /// Puts the bytes there in the file; what lies around them stays.
    [[nodiscard]] std::error_code WriteAll(std::string_view bytes, std::size_t at = 0) const;

    /// Fills this file, an empty one, with the content of another, piece by piece. `goesOn` is told
    /// before each piece how many bytes are there; operation_canceled when it gives false.
    [[nodiscard]] std::error_code
    CopyFrom(const FileHandle& source, const std::function<bool(std::uint64_t done)>& goesOn) const;

    /// Makes the file hold these bytes alone, synced. A failure leaves any mixture.
    [[nodiscard]] std::error_code Overwrite(std::string_view bytes) const;

    /// Whether it holds exactly these bytes; operation_canceled when it does not.
    [[nodiscard]] std::error_code MustHold(std::string_view bytes) const;

    /// Sets owner, group and mode, as far as they differ.
    [[nodiscard]] std::error_code TakeRightsOf(const FileStatus& other) const;

    /// Sets owner, group and permissions. Where the owner may not be set, the permissions become
    /// so few that nobody gets more than `other` gives.
    [[nodiscard]] std::error_code TakePermissionsOf(const FileStatus& other) const;

    /// Waits until the content, or the folder's names, lie on the calls. A folder of a file system
    /// that cannot sync folders counts as synced.
    [[nodiscard]] std::error_code Sync() const;

    /// Takes the file's lock until it is closed; permission_denied when another program has it.
    /// A file system without locks gives what its call gives.
    [[nodiscard]] std::error_code Lock() const;

    /// Takes the lock as soon as no other program has it.
    [[nodiscard]] std::error_code WaitForLock() const;

    /// Whether the file has an access list beside its mode.
    [[nodiscard]] std::error_code HasAccessList(bool& has) const;

private:
    bool HasOwnerOf(const FileStatus& other) const
    {
        return m_status.st_uid == other.st_uid && m_status.st_gid == other.st_gid;
    }
    std::error_code TakeOwnerOf(const FileStatus& other) const;
    std::error_code ReadSome(std::size_t from, std::span<char> buffer, std::size_t& count) const;

    SystemCalls& m_calls;
    int m_descriptor = -1;
    FileStatus m_status{};
};

} // namespace orvane
