#include "disk/system_calls.h"

#include <cerrno>
#include <climits>
#include <cstdio>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace orvane {

namespace {

SystemCalls::Error LastError()
{
    return {errno, std::generic_category()};
}

/// The outcome of a call that gives -1 on failure.
template <class Result>
SystemCalls::Error ErrorOf(Result result)
{
    return result == -1 ? LastError() : SystemCalls::Error();
}

/// The same for a call that gives a count otherwise.
SystemCalls::Error CountOf(ssize_t result, std::size_t& count)
{
    count = result == -1 ? 0 : static_cast<std::size_t>(result);
    return ErrorOf(result);
}

} // namespace

SystemCalls::Error PosixCalls::Open(const std::string& path, int flags, mode_t mode,
                                    int& descriptor)
{
    descriptor = ::open(path.c_str(), flags, mode);
    return ErrorOf(descriptor);
}

SystemCalls::Error PosixCalls::Close(int descriptor)
{
    return ErrorOf(::close(descriptor));
}

SystemCalls::Error PosixCalls::Read(int descriptor, off_t offset, std::span<char> buffer,
                                    std::size_t& count)
{
    return CountOf(::pread(descriptor, buffer.data(), buffer.size(), offset), count);
}

SystemCalls::Error PosixCalls::Write(int descriptor, off_t offset, std::string_view bytes,
                                     std::size_t& count)
{
    return CountOf(::pwrite(descriptor, bytes.data(), bytes.size(), offset), count);
}

SystemCalls::Error PosixCalls::Truncate(int descriptor, off_t size)
{
    return ErrorOf(::ftruncate(descriptor, size));
}

SystemCalls::Error PosixCalls::Sync(int descriptor)
{
    return ErrorOf(::fsync(descriptor));
}

SystemCalls::Error PosixCalls::Lock(int descriptor)
{
    return ErrorOf(::flock(descriptor, LOCK_EX | LOCK_NB));
}

SystemCalls::Error PosixCalls::Status(int descriptor, FileStatus& status)
{
    return ErrorOf(::fstat(descriptor, &status));
}

SystemCalls::Error PosixCalls::StatusAt(const std::string& path, FileStatus& status)
{
    return ErrorOf(::stat(path.c_str(), &status));
}

SystemCalls::Error PosixCalls::AttributeSize(int descriptor, const char* name, std::size_t& size)
{
    return CountOf(::fgetxattr(descriptor, name, nullptr, 0), size);
}

SystemCalls::Error PosixCalls::ChangeMode(int descriptor, mode_t mode)
{
    return ErrorOf(::fchmod(descriptor, mode));
}

SystemCalls::Error PosixCalls::ChangeOwner(int descriptor, uid_t user, gid_t group)
{
    return ErrorOf(::fchown(descriptor, user, group));
}

SystemCalls::Error PosixCalls::Rename(const std::string& from, const std::string& to,
                                      unsigned flags)
{
    // Not every file system knows the call with flags.
    return ErrorOf(flags == 0 ? ::rename(from.c_str(), to.c_str())
                              : ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags));
}

SystemCalls::Error PosixCalls::Remove(const std::string& path)
{
    return ErrorOf(::unlink(path.c_str()));
}

SystemCalls::Error PosixCalls::ReadLink(const std::string& path, std::string& target)
{
    target.resize(PATH_MAX);
    std::size_t size = 0;
    const Error error = CountOf(::readlink(path.c_str(), target.data(), target.size()), size);
    target.resize(size);
    return error;
}

SystemCalls::Error PosixCalls::MakeFolder(const std::string& path, mode_t mode)
{
    return ErrorOf(::mkdir(path.c_str(), mode));
}

SystemCalls::Error PosixCalls::RemoveFolder(const std::string& path)
{
    return ErrorOf(::rmdir(path.c_str()));
}

SystemCalls::Error PosixCalls::List(const std::string& path, std::vector<FolderEntry>& entries)
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
