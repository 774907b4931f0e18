#include "tests/support/faulty_calls.h"

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

SystemCalls::Error ErrorOf(Trouble trouble)
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

void FaultyCalls::Arm(Trouble trouble, int call)
{
    m_trouble = trouble;
    m_troubledCall = call;
    m_callCount = 0;
    m_struckAt = 0;
    m_isFull = false;
}

void FaultyCalls::Heal()
{
    m_trouble.reset();
    m_isFull = false;
    m_isDead = false;
}

void FaultyCalls::CutPower()
{
    m_unsynced.LoseContent();
    m_unsynced.LoseNames();
}

std::optional<Trouble> FaultyCalls::Next(bool isWrite)
{
    ++m_callCount;
    if (!m_trouble || m_callCount < m_troubledCall || (IsHalfway(*m_trouble) && !isWrite) ||
        (Struck() && *m_trouble != Trouble::BrokenFromThere))
        return std::nullopt;
    if (!Struck())
        m_struckAt = m_callCount;
    return m_trouble;
}

void FaultyCalls::Die(Trouble death)
{
    if (death == Trouble::PowerCutLateBytes)
        m_unsynced.KeepNames();
    if (death == Trouble::PowerCut || death == Trouble::PowerCutLateBytes)
        CutPower();
    m_isDead = true;
}

SystemCalls::Error FaultyCalls::Meet()
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

SystemCalls::Error FaultyCalls::Open(const std::string& path, int flags, mode_t mode,
                                     int& descriptor)
{
    if (const Error error = Meet())
        return error;
    const bool isNew = (flags & O_CREAT) != 0 && ::access(path.c_str(), F_OK) != 0;
    if (const Error error = m_calls.Open(path, flags, mode, descriptor))
        return error;
    ++m_openDescriptors;
    m_unsynced.Opened(descriptor, path);
    if (isNew)
        m_unsynced.Created(path);
    return {};
}

SystemCalls::Error FaultyCalls::Close(int descriptor)
{
    --m_openDescriptors;
    m_calls.Close(descriptor);
    const auto trouble = m_isDead ? std::nullopt : Next(false);
    if (trouble && IsDeath(*trouble))
        Die(*trouble);
    return trouble ? ErrorOf(*trouble) : Error();
}

SystemCalls::Error FaultyCalls::Write(int descriptor, off_t offset, std::string_view bytes,
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
            m_calls.Write(descriptor, offset,
                          bytes.substr(0, isHalfway ? (bytes.size() + 1) / 2 : bytes.npos), count);
    m_isFull = m_isFull || trouble == Trouble::FullHalfway;
    if (trouble && IsDeath(*trouble)) {
        Die(*trouble);
        throw Killed();
    }
    return trouble && !isHalfway ? ErrorOf(*trouble) : error;
}

SystemCalls::Error FaultyCalls::Truncate(int descriptor, off_t size)
{
    if (const Error error = Meet())
        return error;
    m_unsynced.BeforeWriting(descriptor);
    return m_calls.Truncate(descriptor, size);
}

SystemCalls::Error FaultyCalls::Sync(int descriptor)
{
    if (const Error error = Meet())
        return error;
    m_unsynced.Synced(descriptor);
    return {};
}

SystemCalls::Error FaultyCalls::Rename(const std::string& from, const std::string& to,
                                       unsigned flags)
{
    if (const Error error = Meet())
        return error;
    const bool isExchange = flags == RENAME_EXCHANGE;
    Unsynced::Undo undo = isExchange ? Unsynced::Undo() : m_unsynced.BeforeRemoving(to);
    const Error error = m_calls.Rename(from, to, flags);
    if (!error)
        m_unsynced.Renamed(from, to, std::move(undo));
    return error;
}

SystemCalls::Error FaultyCalls::Remove(const std::string& path)
{
    if (const Error error = Meet())
        return error;
    Unsynced::Undo undo = m_unsynced.BeforeRemoving(path);
    const Error error = m_calls.Remove(path);
    if (!error)
        m_unsynced.Removed(path, std::move(undo));
    return error;
}

SystemCalls::Error FaultyCalls::MakeFolder(const std::string& path, mode_t mode)
{
    if (const Error error = Meet())
        return error;
    const Error error = m_calls.MakeFolder(path, mode);
    if (!error)
        m_unsynced.MadeFolder(path);
    return error;
}

} // namespace orvane::testing
