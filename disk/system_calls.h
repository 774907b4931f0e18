#pragma once

#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <sys/stat.h>
#include <sys/types.h>

namespace orvane {

using FileStatus = struct stat;

/// A name in a folder, and the type of what has that name: a DT_ constant of <dirent.h>.
struct FolderEntry
{
    std::string Name;
    unsigned char Type;
};

/// The system calls on which the file store is built, one method each. A method makes its call once
/// and gives an empty error code or the call's error, EINTR included; it may read or write less
/// than it was asked to. Paths are bytes.
class SystemCalls
{
public:
    virtual ~SystemCalls() = default;

    using Error = std::error_code;

    /// open(2); on success `descriptor` is the caller's to close.
    [[nodiscard]] virtual Error Open(const std::string& path, int flags, mode_t mode,
                                     int& descriptor) = 0;
    /// close(2); the descriptor is gone even on failure, EINTR included.
    virtual Error Close(int descriptor) = 0;
    /// pread(2); a `count` of 0 is the end of the file.
    [[nodiscard]] virtual Error Read(int descriptor, off_t offset, std::span<char> buffer,
                                     std::size_t& count) = 0;
    /// pwrite(2).
    [[nodiscard]] virtual Error Write(int descriptor, off_t offset, std::string_view bytes,
                                      std::size_t& count) = 0;
    /// ftruncate(2).
    [[nodiscard]] virtual Error Truncate(int descriptor, off_t size) = 0;
    /// fsync(2), of a file or a folder.
    [[nodiscard]] virtual Error Sync(int descriptor) = 0;
    /// flock(2) for this descriptor alone, without waiting: EWOULDBLOCK when another has the lock.
    [[nodiscard]] virtual Error Lock(int descriptor) = 0;
    /// fstat(2).
    [[nodiscard]] virtual Error Status(int descriptor, FileStatus& status) = 0;
    /// stat(2): links are followed.
    [[nodiscard]] virtual Error StatusAt(const std::string& path, FileStatus& status) = 0;
    /// fgetxattr(2) for the size alone; ENODATA when the file has no such attribute.
    [[nodiscard]] virtual Error AttributeSize(int descriptor, const char* name,
                                              std::size_t& size) = 0;
    /// fchmod(2).
    [[nodiscard]] virtual Error ChangeMode(int descriptor, mode_t mode) = 0;
    /// fchown(2).
    [[nodiscard]] virtual Error ChangeOwner(int descriptor, uid_t user, gid_t group) = 0;
    /// rename(2), or renameat2(2) when there are `flags`: RENAME_EXCHANGE or RENAME_NOREPLACE.
    [[nodiscard]] virtual Error Rename(const std::string& from, const std::string& to,
                                       unsigned flags = 0) = 0;
    /// unlink(2).
    [[nodiscard]] virtual Error Remove(const std::string& path) = 0;
    /// readlink(2); EINVAL when the path is no symbolic link.
    [[nodiscard]] virtual Error ReadLink(const std::string& path, std::string& target) = 0;
    /// mkdir(2).
    [[nodiscard]] virtual Error MakeFolder(const std::string& path, mode_t mode) = 0;
    /// rmdir(2).
    [[nodiscard]] virtual Error RemoveFolder(const std::string& path) = 0;
    /// opendir(3) to closedir(3): the names of a folder in no order, without "." and "..".
    [[nodiscard]] virtual Error List(const std::string& path,
                                     std::vector<FolderEntry>& entries) = 0;
};

/// The calls of the operating system itself.
class PosixCalls : public SystemCalls
{
public:
    Error Open(const std::string& path, int flags, mode_t mode, int& descriptor) override;
    Error Close(int descriptor) override;
    Error Read(int descriptor, off_t offset, std::span<char> buffer, std::size_t& count) override;
    Error Write(int descriptor, off_t offset, std::string_view bytes, std::size_t& count) override;
    Error Truncate(int descriptor, off_t size) override;
    Error Sync(int descriptor) override;
    Error Lock(int descriptor) override;
    Error Status(int descriptor, FileStatus& status) override;
    Error StatusAt(const std::string& path, FileStatus& status) override;
    Error AttributeSize(int descriptor, const char* name, std::size_t& size) override;
    Error ChangeMode(int descriptor, mode_t mode) override;
    Error ChangeOwner(int descriptor, uid_t user, gid_t group) override;
    Error Rename(const std::string& from, const std::string& to, unsigned flags) override;
    Error Remove(const std::string& path) override;
    Error ReadLink(const std::string& path, std::string& target) override;
    Error MakeFolder(const std::string& path, mode_t mode) override;
    Error RemoveFolder(const std::string& path) override;
    Error List(const std::string& path, std::vector<FolderEntry>& entries) override;
};

} // namespace orvane
