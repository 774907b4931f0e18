#include "disk/system_calls.h"

#include <cerrno>
#include <climits>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace orvane {

namespace {

Disk::Error LastError()
{
    return {errno, std::generic_category()};
}

/// The outcome of a call that gives -1 on failure.
template <class Result>
Disk::Error ErrorOf(Result result)
{
    return result == -1 ? LastError() : Disk::Error();
}

/// The same for a call that gives a count otherwise.
Disk::Error CountOf(ssize_t result, std::size_t& count)
{
    count = result == -1 ? 0 : static_cast<std::size_t>(result);
    return ErrorOf(result);
}

} // namespace

Disk::Error PosixDisk::Open(const std::string& path, int flags, mode_t mode, int& descriptor)
{
    descriptor = ::open(path.c_str(), flags, mode);
    return ErrorOf(descriptor);
}

Disk::Error PosixDisk::Close(int descriptor)
{
    return ErrorOf(::close(descriptor));
}

Disk::Error PosixDisk::Read(int descriptor, off_t offset, std::span<char> buffer,
                            std::size_t& count)
{
    return CountOf(::pread(descriptor, buffer.data(), buffer.size(), offset), count);
}

Disk::Error PosixDisk::Write(int descriptor, off_t offset, std::string_view bytes,
                             std::size_t& count)
{
    return CountOf(::pwrite(descriptor, bytes.data(), bytes.size(), offset), count);
}

Disk::Error PosixDisk::Truncate(int descriptor, off_t size)
{
    return ErrorOf(::ftruncate(descriptor, size));
}

Disk::Error PosixDisk::Sync(int descriptor)
{
    return ErrorOf(::fsync(descriptor));
}

Disk::Error PosixDisk::Lock(int descriptor)
{
    return ErrorOf(::flock(descriptor, LOCK_EX | LOCK_NB));
}

Disk::Error PosixDisk::Status(int descriptor, FileStatus& status)
{
    return ErrorOf(::fstat(descriptor, &status));
}

Disk::Error PosixDisk::StatusAt(const std::string& path, FileStatus& status)
{
    return ErrorOf(::stat(path.c_str(), &status));
}

Disk::Error PosixDisk::AttributeSize(int descriptor, const char* name, std::size_t& size)
{
    return CountOf(::fgetxattr(descriptor, name, nullptr, 0), size);
}

Disk::Error PosixDisk::ChangeMode(int descriptor, mode_t mode)
{
    return ErrorOf(::fchmod(descriptor, mode));
}

Disk::Error PosixDisk::ChangeOwner(int descriptor, uid_t user, gid_t group)
{
    return ErrorOf(::fchown(descriptor, user, group));
}

Disk::Error PosixDisk::Rename(const std::string& from, const std::string& to)
{
    return ErrorOf(::rename(from.c_str(), to.c_str()));
}

Disk::Error PosixDisk::Remove(const std::string& path)
{
    return ErrorOf(::unlink(path.c_str()));
}

Disk::Error PosixDisk::ReadLink(const std::string& path, std::string& target)
{
    target.resize(PATH_MAX);
    std::size_t size = 0;
    const Error error = CountOf(::readlink(path.c_str(), target.data(), target.size()), size);
    target.resize(size);
    return error;
}

Disk::Error PosixDisk::MakeFolder(const std::string& path, mode_t mode)
{
    return ErrorOf(::mkdir(path.c_str(), mode));
}

Disk::Error PosixDisk::RemoveFolder(const std::string& path)
{
    return ErrorOf(::rmdir(path.c_str()));
}

Disk::Error PosixDisk::List(const std::string& path, std::vector<FolderEntry>& entries)
{
    entries.clear();
    DIR* folder = ::opendir(path.c_str());
    if (folder == nullptr)
        return LastError();
    Error error;
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(folder);
        if (entry == nullptr) {
            if (errno != 0)
                error = LastError();
            break;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            entries.push_back({std::string(name), entry->d_type});
    }
    ::closedir(folder);
    return error;
}

} // namespace orvane
