#include "tests/support/faulty_disk.h"

#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::testing {

namespace {

bool IsHalfway(Trouble trouble)
{
    return trouble == Trouble::ShortWrite || trouble == Trouble::FullHalfway ||
           trouble == Trouble::KillHalfway;
}

Disk::Error ErrorOf(Trouble trouble)
{
    switch (trouble) {
    case Trouble::DiskFull:
        return std::make_error_code(std::errc::no_space_on_device);
    case Trouble::NoPermission:
        return std::make_error_code(std::errc::permission_denied);
    case Trouble::Interrupted:
        return std::make_error_code(std::errc::interrupted);
    case Trouble::IoError:
    case Trouble::BrokenFromThere:
        return std::make_error_code(std::errc::io_error);
    default:
        return {};
    }
}

} // namespace

const char* NameOf(Trouble trouble)
{
    constexpr const char* names[] = {"disk full",
                                     "I/O error",
                                     "no permission",
                                     "interrupted",
                                     "short write",
                                     "full halfway",
                                     "broken from there",
                                     "kill",
                                     "kill halfway",
                                     "power cut",
                                     "power cut with late bytes"};
    return names[static_cast<int>(trouble)];
}

bool IsDeath(Trouble trouble)
{
    return trouble == Trouble::Kill || trouble == Trouble::KillHalfway ||
           trouble == Trouble::PowerCut || trouble == Trouble::PowerCutLateBytes;
}

void FaultyDisk::Arm(Trouble trouble, int call)
{
    m_trouble = trouble;
    m_troubledCall = call;
    m_calls = 0;
    m_struckAt = 0;
    m_isFull = false;
}

void FaultyDisk::Heal()
{
    m_trouble.reset();
    m_isFull = false;
    m_isDead = false;
}

void FaultyDisk::CutPower()
{
    m_unsynced.LoseContent();
    m_unsynced.LoseNames();
}

std::optional<Trouble> FaultyDisk::Next(bool isWrite)
{
    ++m_calls;
    if (!m_trouble || m_calls < m_troubledCall || (IsHalfway(*m_trouble) && !isWrite) ||
        (Struck() && *m_trouble != Trouble::BrokenFromThere))
        return std::nullopt;
    if (!Struck())
        m_struckAt = m_calls;
    return m_trouble;
}

void FaultyDisk::Die(Trouble death)
{
    if (death == Trouble::PowerCutLateBytes)
        m_unsynced.KeepNames();
    if (death == Trouble::PowerCut || death == Trouble::PowerCutLateBytes)
        CutPower();
    m_isDead = true;
    if (m_exitStatus)
        ::_exit(*m_exitStatus);
}

Disk::Error FaultyDisk::Meet()
{
    if (m_isDead)
        throw Killed();
    const auto trouble = Next(false);
    if (!trouble)
        return {};
    if (IsDeath(*trouble)) {
        Die(*trouble);
        throw Killed();
    }
    return ErrorOf(*trouble);
}

Disk::Error FaultyDisk::Open(const std::string& path, int flags, mode_t mode, int& descriptor)
{
    if (const Error error = Meet())
        return error;
    const bool isNew = (flags & O_CREAT) != 0 && ::access(path.c_str(), F_OK) != 0;
    if (const Error error = m_disk.Open(path, flags, mode, descriptor))
        return error;
    ++m_openDescriptors;
    m_unsynced.Opened(descriptor, path);
    if (isNew)
        m_unsynced.Created(path);
    return {};
}

Disk::Error FaultyDisk::Close(int descriptor)
{
    --m_openDescriptors;
    m_disk.Close(descriptor);
    const auto trouble = m_isDead ? std::nullopt : Next(false);
    if (trouble && IsDeath(*trouble))
        Die(*trouble);
    return trouble ? ErrorOf(*trouble) : Error();
}

Disk::Error FaultyDisk::Read(int descriptor, off_t offset, std::span<char> buffer,
                             std::size_t& count)
{
    const Error error = Meet();
    return error ? error : m_disk.Read(descriptor, offset, buffer, count);
}

Disk::Error FaultyDisk::Write(int descriptor, off_t offset, std::string_view bytes,
                              std::size_t& count)
{
    if (m_isDead)
        throw Killed();
    m_unsynced.BeforeWriting(descriptor);
    const auto trouble = m_isFull ? Trouble::DiskFull : Next(true);
    const bool isHalfway = trouble && IsHalfway(*trouble);
    Error error;
    if (!trouble || isHalfway)
        error =
            m_disk.Write(descriptor, offset,
                         bytes.substr(0, isHalfway ? (bytes.size() + 1) / 2 : bytes.npos), count);
    m_isFull = m_isFull || trouble == Trouble::FullHalfway;
    if (trouble && IsDeath(*trouble)) {
        Die(*trouble);
        throw Killed();
    }
    return trouble && !isHalfway ? ErrorOf(*trouble) : error;
}

Disk::Error FaultyDisk::Truncate(int descriptor, off_t size)
{
    if (const Error error = Meet())
        return error;
    m_unsynced.BeforeWriting(descriptor);
    return m_disk.Truncate(descriptor, size);
}

Disk::Error FaultyDisk::Sync(int descriptor)
{
    if (const Error error = Meet())
        return error;
    m_unsynced.Synced(descriptor);
    return {};
}

Disk::Error FaultyDisk::Lock(int descriptor)
{
    const Error error = Meet();
    return error ? error : m_disk.Lock(descriptor);
}

Disk::Error FaultyDisk::Status(int descriptor, FileStatus& status)
{
    const Error error = Meet();
    return error ? error : m_disk.Status(descriptor, status);
}

Disk::Error FaultyDisk::StatusAt(const std::string& path, FileStatus& status)
{
    const Error error = Meet();
    return error ? error : m_disk.StatusAt(path, status);
}

Disk::Error FaultyDisk::AttributeSize(int descriptor, const char* name, std::size_t& size)
{
    const Error error = Meet();
    return error ? error : m_disk.AttributeSize(descriptor, name, size);
}

Disk::Error FaultyDisk::ChangeMode(int descriptor, mode_t mode)
{
    const Error error = Meet();
    return error ? error : m_disk.ChangeMode(descriptor, mode);
}

Disk::Error FaultyDisk::ChangeOwner(int descriptor, uid_t user, gid_t group)
{
    const Error error = Meet();
    return error ? error : m_disk.ChangeOwner(descriptor, user, group);
}

Disk::Error FaultyDisk::Rename(const std::string& from, const std::string& to)
{
    if (const Error error = Meet())
        return error;
    Unsynced::Undo undo = m_unsynced.BeforeRemoving(to);
    const Error error = m_disk.Rename(from, to);
    if (!error)
        m_unsynced.Renamed(from, to, std::move(undo));
    return error;
}

Disk::Error FaultyDisk::Remove(const std::string& path)
{
    if (const Error error = Meet())
        return error;
    Unsynced::Undo undo = m_unsynced.BeforeRemoving(path);
    const Error error = m_disk.Remove(path);
    if (!error)
        m_unsynced.Removed(path, std::move(undo));
    return error;
}

Disk::Error FaultyDisk::ReadLink(const std::string& path, std::string& target)
{
    const Error error = Meet();
    return error ? error : m_disk.ReadLink(path, target);
}

Disk::Error FaultyDisk::MakeFolder(const std::string& path, mode_t mode)
{
    if (const Error error = Meet())
        return error;
    const Error error = m_disk.MakeFolder(path, mode);
    if (!error)
        m_unsynced.MadeFolder(path);
    return error;
}

Disk::Error FaultyDisk::RemoveFolder(const std::string& path)
{
    const Error error = Meet();
    return error ? error : m_disk.RemoveFolder(path);
}

Disk::Error FaultyDisk::List(const std::string& path, std::vector<FolderEntry>& entries)
{
    const Error error = Meet();
    return error ? error : m_disk.List(path, entries);
}

} // namespace orvane::testing
