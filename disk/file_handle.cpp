#include "disk/file_handle.h"

#include <array>

#include <fcntl.h>

namespace orvane {

std::string FolderPart(std::string_view path)
{
    const std::size_t last = path.rfind('/');
    return last == std::string_view::npos ? "./" : std::string(path.substr(0, last + 1));
}

OpenFile::~OpenFile()
{
    if (m_descriptor != -1)
        m_disk.Close(m_descriptor);
}

std::error_code OpenFile::Open(const std::string& path, int flags, mode_t mode)
{
    const std::error_code error = Retried([&] {
        return m_disk.Open(path, flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode, m_descriptor);
    });
    if (error)
        m_descriptor = -1;
    return error ? error : Retried([&] { return m_disk.Status(m_descriptor, m_status); });
}

std::error_code OpenFile::OpenRegular(const std::string& path, int flags)
{
    if (const auto error = Open(path, flags))
        return error;
    return S_ISREG(m_status.st_mode) ? std::error_code()
                                     : std::make_error_code(std::errc::is_a_directory);
}

std::error_code OpenFile::OpenFolder(const std::string& path)
{
    const std::error_code error = Open(path, O_RDONLY | O_DIRECTORY);
    return error == std::errc::no_such_file_or_directory
               ? std::make_error_code(std::errc::not_a_directory)
               : error;
}

std::error_code OpenFile::IsRemoved(bool& removed) const
{
    FileStatus now{};
    const std::error_code error = Retried([&] { return m_disk.Status(m_descriptor, now); });
    removed = now.st_nlink == 0;
    return error;
}

std::error_code OpenFile::ReadAll(std::string& bytes) const
{
    bytes.clear();
    std::array<char, 65536> buffer;
    while (true) {
        std::size_t count = 0;
        const auto error = Retried([&] {
            return m_disk.Read(m_descriptor, static_cast<off_t>(bytes.size()), buffer, count);
        });
        if (error || count == 0)
            return error;
        bytes.append(buffer.data(), count);
    }
}

std::error_code OpenFile::WriteAll(std::string_view bytes) const
{
    for (std::size_t done = 0; done < bytes.size();) {
        std::size_t count = 0;
        const auto error = Retried([&] {
            return m_disk.Write(m_descriptor, static_cast<off_t>(done), bytes.substr(done), count);
        });
        if (error)
            return error;
        if (count == 0)
            return std::make_error_code(std::errc::io_error);
        done += count;
    }
    return {};
}

std::error_code OpenFile::Overwrite(std::string_view bytes) const
{
    // The cut comes last, so that a reader never meets an empty file.
    if (const auto error = WriteAll(bytes))
        return error;
    const auto size = static_cast<off_t>(bytes.size());
    if (const auto error = Retried([&] { return m_disk.Truncate(m_descriptor, size); }))
        return error;
    return Sync();
}

std::error_code OpenFile::TakeRightsOf(const FileStatus& other) const
{
    const bool sameOwner = m_status.st_uid == other.st_uid && m_status.st_gid == other.st_gid;
    if (!sameOwner) {
        const auto error =
            Retried([&] { return m_disk.ChangeOwner(m_descriptor, other.st_uid, other.st_gid); });
        if (error)
            return error;
    }
    // A change of owner may take bits off the mode.
    if (sameOwner && m_status.st_mode == other.st_mode)
        return {};
    return Retried([&] { return m_disk.ChangeMode(m_descriptor, other.st_mode & 07777); });
}

std::error_code OpenFile::Sync() const
{
    const std::error_code error = Retried([&] { return m_disk.Sync(m_descriptor); });
    const bool cannot = error == std::errc::invalid_argument || error == std::errc::not_supported;
    return cannot && S_ISDIR(m_status.st_mode) ? std::error_code() : error;
}

std::error_code OpenFile::Lock() const
{
    const std::error_code error = Retried([&] { return m_disk.Lock(m_descriptor); });
    return error == std::errc::operation_would_block
               ? std::make_error_code(std::errc::permission_denied)
               : error;
}

std::error_code OpenFile::HasAccessList(bool& has) const
{
    std::size_t size = 0;
    const auto error = Retried(
        [&] { return m_disk.AttributeSize(m_descriptor, "system.posix_acl_access", size); });
    has = size > 0;
    const bool none = error == std::errc::no_message_available || // ENODATA
                      error == std::errc::not_supported ||
                      error == std::errc::function_not_supported;
    return none ? std::error_code() : error;
}

} // namespace orvane
