#pragma once

#include "disk/system_calls.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

/// Makes a system call, again and again as long as a signal interrupts it; gives the error of the
/// last one.
template <class Call>
std::error_code Retried(Call call)
{
    std::error_code error = call();
    while (error == std::errc::interrupted)
        error = call();
    return error;
}

/// The part of a path up to and including its last "/"; "./" when there is none.
std::string FolderOf(std::string_view path);

/// Whether both describe the same file, by device and inode.
bool AreSameFile(const FileStatus& one, const FileStatus& other);

/// Whether nothing was done to a file between two looks at it, as far as its size and times tell.
/// A change that follows another at once may leave the times as they are.
bool AreUnchanged(const FileStatus& one, const FileStatus& other);

/// An open file or folder, closed with the object. Interrupted calls are repeated, and reads and
/// writes that stop early are continued. Failures of closing are ignored: what must be on the disk
/// was synced before.
class FileHandle
{
public:
    explicit FileHandle(SystemCalls& calls) : m_calls(calls) {}
    ~FileHandle();
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    /// Opens a file, folder, pipe or device without ever blocking. Expects an object that has
    /// nothing open.
    [[nodiscard]] std::error_code Open(const std::string& path, int flags, mode_t mode = 0);

    /// Opens a regular file; a folder, pipe or device gives is_a_directory.
    [[nodiscard]] std::error_code OpenRegular(const std::string& path, int flags);

    /// Opens a folder, so that it can be synced; a missing one gives not_a_directory.
    [[nodiscard]] std::error_code OpenFolder(const std::string& path);

    /// The status of the file at the moment when it was opened.
    const FileStatus& Status() const { return m_status; }

    /// Whether the file has lost its last name since it was opened.
    [[nodiscard]] std::error_code IsRemoved(bool& removed) const;

    /// The whole content.
    [[nodiscard]] std::error_code ReadAll(std::string& bytes) const;

    /// Writes the bytes from position `at` on, counted from 0; the rest of the file stays.
    [[nodiscard]] std::error_code WriteAll(std::string_view bytes, std::size_t at = 0) const;

    /// Fills this file, which must be empty, with the content of another, piece by piece. Before
    /// each piece `goesOn` is told how many bytes are copied; operation_canceled when it gives
    /// false.
    [[nodiscard]] std::error_code
    CopyFrom(const FileHandle& source, const std::function<bool(std::uint64_t done)>& goesOn) const;

    /// Makes the file hold these bytes alone, synced. After a failure it may hold any mixture of
    /// old and new bytes.
    [[nodiscard]] std::error_code Overwrite(std::string_view bytes) const;

    /// No error when the file holds exactly these bytes; operation_canceled when it does not.
    [[nodiscard]] std::error_code MustHold(std::string_view bytes) const;

    /// Sets owner, group and mode to those of `other`, where they differ.
    [[nodiscard]] std::error_code TakeRightsOf(const FileStatus& other) const;

    /// Sets owner, group and permissions to those of `other`, but the owner may always read and
    /// write. Where this user may not set the owner, the group gets no more than both group and
    /// others have in `other`, so that nobody else gets more rights. On a file system that lets
    /// nobody set permissions, those of the open file stay.
    [[nodiscard]] std::error_code TakePermissionsOf(const FileStatus& other) const;

    /// Takes all rights from everybody but the owner.
    [[nodiscard]] std::error_code TakeFromOthers() const;

    /// Waits until the file's content, or the folder's names, are on the disk. A folder on a file
    /// system that cannot sync folders counts as synced.
    [[nodiscard]] std::error_code Sync() const;

    /// Takes the file's lock and keeps it until the file is closed; permission_denied when another
    /// program has it. On a file system without locks, the error of the call.
    [[nodiscard]] std::error_code Lock() const;

    /// Whether the file has an access control list (POSIX ACL) beside its mode.
    [[nodiscard]] std::error_code HasAccessList(bool& has) const;

private:
    bool HasOwnerOf(const FileStatus& other) const
    {
        return m_status.st_uid == other.st_uid && m_status.st_gid == other.st_gid;
    }
    std::error_code TakeOwnerOf(const FileStatus& other) const;
    bool IsEnd(std::size_t done, std::size_t count, bool isFull) const;
    std::error_code ReadSome(std::size_t from, std::span<char> buffer, std::size_t& count) const;

    SystemCalls& m_calls;
    int m_descriptor = -1;
    FileStatus m_status{};
};

} // namespace orvane
