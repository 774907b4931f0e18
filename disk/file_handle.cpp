#include "disk/file_handle.h"

#include <algorithm>
#include <array>
#include <vector>

#include <fcntl.h>

namespace orvane {

std::string FolderOf(std::string_view path)
{
    const std::size_t last = path.rfind('/');
    return last == std::string_view::npos ? "./" : std::string(path.substr(0, last + 1));
}

bool AreSameFile(const FileStatus& one, const FileStatus& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool AreUnchanged(const FileStatus& one, const FileStatus& other)
{
    const auto isAt = [](const timespec& time, const timespec& otherTime) {
        return time.tv_sec == otherTime.tv_sec && time.tv_nsec == otherTime.tv_nsec;
    };
    return AreSameFile(one, other) && one.st_size == other.st_size &&
           isAt(one.st_mtim, other.st_mtim) && isAt(one.st_ctim, other.st_ctim);
}

FileHandle::~FileHandle()
{
    if (m_descriptor != -1)
        m_calls.Close(m_descriptor);
}

std::error_code FileHandle::Open(const std::string& path, int flags, mode_t mode)
{
    const std::error_code error = Retried([&] {
        return m_calls.Open(path, flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode, m_descriptor);
    });
    if (error)
        m_descriptor = -1;
    return error ? error : Retried([&] { return m_calls.Status(m_descriptor, m_status); });
}

std::error_code FileHandle::OpenRegular(const std::string& path, int flags)
{
    if (const auto error = Open(path, flags))
        return error;
    return S_ISREG(m_status.st_mode) ? std::error_code()
                                     : std::make_error_code(std::errc::is_a_directory);
}

std::error_code FileHandle::OpenFolder(const std::string& path)
{
    const std::error_code error = Open(path, O_RDONLY | O_DIRECTORY);
    return error == std::errc::no_such_file_or_directory
               ? std::make_error_code(std::errc::not_a_directory)
               : error;
}

std::error_code FileHandle::IsRemoved(bool& removed) const
{
    FileStatus now{};
    const std::error_code error = Retried([&] { return m_calls.Status(m_descriptor, now); });
    removed = now.st_nlink == 0;
    return error;
}

std::error_code FileHandle::ReadAll(std::string& bytes) const
{
    std::size_t done = 0;
    while (true) {
        // One byte more than expected shows that the end was reached.
        if (done == bytes.size() || done == 0)
            bytes.resize(std::max(static_cast<std::size_t>(m_status.st_size), done * 2) + 1);
        std::size_t count = 0;
        const auto error = ReadSome(done, std::span(bytes).subspan(done), count);
        done += count;
        if (error || IsEnd(done, count, bytes.size() == done)) {
            bytes.resize(done);
            return error;
        }
    }
}

std::error_code FileHandle::MustHold(std::string_view bytes) const
{
    std::array<char, 65536> buffer;
    for (std::size_t done = 0;;) {
        std::size_t count = 0;
        if (const auto error = ReadSome(done, buffer, count))
            return error;
        if (bytes.substr(done, count) != std::string_view(buffer.data(), count))
            return std::make_error_code(std::errc::operation_canceled);
        done += count;
        if (IsEnd(done, count, count == buffer.size()))
            return done == bytes.size() ? std::error_code()
                                        : std::make_error_code(std::errc::operation_canceled);
    }
}

/// Whether a read that gave `count` bytes, all that were wanted if `isFull`, and ended at `done`
/// came to the end of the file. Some file systems stop a read early, but not where the file ends by
/// its size.
bool FileHandle::IsEnd(std::size_t done, std::size_t count, bool isFull) const
{
    return count == 0 || (!isFull && done == static_cast<std::size_t>(m_status.st_size));
}

std::error_code FileHandle::ReadSome(std::size_t from, std::span<char> buffer,
                                     std::size_t& count) const
{
    return Retried(
        [&] { return m_calls.Read(m_descriptor, static_cast<off_t>(from), buffer, count); });
}

std::error_code FileHandle::WriteAll(std::string_view bytes, std::size_t at) const
{
    for (std::size_t done = 0; done < bytes.size();) {
        std::size_t count = 0;
        const auto place = static_cast<off_t>(at + done);
        const auto error =
            Retried([&] { return m_calls.Write(m_descriptor, place, bytes.substr(done), count); });
        if (error)
            return error;
        if (count == 0)
            return std::make_error_code(std::errc::io_error);
        done += count;
    }
    return {};
}

std::error_code FileHandle::CopyFrom(const FileHandle& source,
                                     const std::function<bool(std::uint64_t done)>& goesOn) const
{
    constexpr std::size_t pieceSize = 1 << 20;
    constexpr std::size_t syncedSize = 16 * pieceSize;
    const auto size = static_cast<std::size_t>(source.m_status.st_size);
    std::vector<char> piece(std::clamp<std::size_t>(size, 4096, pieceSize));
    for (std::size_t done = 0;;) {
        if (!goesOn(done))
            return std::make_error_code(std::errc::operation_canceled);
        std::size_t count = 0;
        if (const auto error = source.ReadSome(done, piece, count))
            return error;
        if (count == 0)
            return {};
        if (const auto error = WriteAll({piece.data(), count}, done))
            return error;
        done += count;
        // Else all of a large file would be waited for at its end, when nobody is asked any more.
        if (done % syncedSize == 0)
            if (const auto error = Sync())
                return error;
    }
}

std::error_code FileHandle::Overwrite(std::string_view bytes) const
{
    // The cut comes last, so that a reader never meets an empty file.
    if (const auto error = WriteAll(bytes))
        return error;
    const auto size = static_cast<off_t>(bytes.size());
    if (const auto error = Retried([&] { return m_calls.Truncate(m_descriptor, size); }))
        return error;
    return Sync();
}

std::error_code FileHandle::TakeOwnerOf(const FileStatus& other) const
{
    if (HasOwnerOf(other))
        return {};
    return Retried([&] { return m_calls.ChangeOwner(m_descriptor, other.st_uid, other.st_gid); });
}

std::error_code FileHandle::TakeRightsOf(const FileStatus& other) const
{
    if (const auto error = TakeOwnerOf(other))
        return error;
    // A change of owner may take bits off the mode.
    if (HasOwnerOf(other) && m_status.st_mode == other.st_mode)
        return {};
    return Retried([&] { return m_calls.ChangeMode(m_descriptor, other.st_mode & 07777); });
}

std::error_code FileHandle::TakePermissionsOf(const FileStatus& other) const
{
    mode_t mode = (other.st_mode & 0777) | 0600;
    std::error_code error = TakeOwnerOf(other);
    if (error == std::errc::operation_not_permitted)
        mode &= ~mode_t{070} | ((mode & 07) << 3);
    else if (error)
        return error;
    if ((m_status.st_mode & 07777) == mode)
        return {};
    error = Retried([&] { return m_calls.ChangeMode(m_descriptor, mode); });
    const bool cannot =
        error == std::errc::operation_not_permitted || error == std::errc::not_supported;
    return cannot ? std::error_code() : error;
}

std::error_code FileHandle::TakeFromOthers() const
{
    const mode_t mode = m_status.st_mode & 07700;
    return (m_status.st_mode & 07777) == mode
               ? std::error_code()
               : Retried([&] { return m_calls.ChangeMode(m_descriptor, mode); });
}

std::error_code FileHandle::Sync() const
{
    const std::error_code error = Retried([&] { return m_calls.Sync(m_descriptor); });
    const bool cannot = error == std::errc::invalid_argument || error == std::errc::not_supported;
    return cannot && S_ISDIR(m_status.st_mode) ? std::error_code() : error;
}

std::error_code FileHandle::Lock() const
{
    const std::error_code error = Retried([&] { return m_calls.Lock(m_descriptor); });
    return error == std::errc::operation_would_block
               ? std::make_error_code(std::errc::permission_denied)
               : error;
}

std::error_code FileHandle::HasAccessList(bool& has) const
{
    std::size_t size = 0;
    const auto error = Retried(
        [&] { return m_calls.AttributeSize(m_descriptor, "system.posix_acl_access", size); });
    has = size > 0;
    const bool none = error == std::errc::no_message_available || // ENODATA
                      error == std::errc::not_supported ||
                      error == std::errc::function_not_supported;
    return none ? std::error_code() : error;
}

} // namespace orvane
