#pragma once

#include "disk/system_calls.h"
#include "tests/support/unsynced.h"

#include <optional>

namespace orvane::testing {

/// What goes wrong at the chosen call.
enum class Trouble
{
    DiskFull,          ///< ENOSPC
    IoError,           ///< EIO
    NoPermission,      ///< EACCES
    Interrupted,       ///< EINTR, once
    ShortWrite,        ///< the next write does half of its work
    FullHalfway,       ///< the next write does half of its work, all later ones fail with ENOSPC
    BrokenFromThere,   ///< EIO, and again at every later call
    Kill,              ///< the process ends before the call
    KillHalfway,       ///< the process ends when the next write has done half of its work
    PowerCut,          ///< the power goes off before the call: what was not synced is lost
    PowerCutLateBytes, ///< the same, on a disk that writes names at once and contents late
};

/// Every trouble once.
inline constexpr Trouble allTroubles[] = {
    Trouble::DiskFull,    Trouble::IoError,          Trouble::NoPermission,
    Trouble::Interrupted, Trouble::ShortWrite,       Trouble::FullHalfway,
    Trouble::Kill,        Trouble::KillHalfway,      Trouble::BrokenFromThere,
    Trouble::PowerCut,    Trouble::PowerCutLateBytes};

/// The trouble in words, for messages of tests.
const char* NameOf(Trouble trouble);

/// Whether the trouble ends the process.
bool IsDeath(Trouble trouble);

/// Thrown by the call at which the process ends, and by every later one but Close().
struct Killed
{
};

/// The real disk, with trouble at a chosen call. To try everything that a command does on the disk,
/// run it again and again, each time on fresh files, with the trouble one call later:
///
///     for (int call = 1; call > 0;) {
///         FaultyCalls calls;
///         calls.Arm(trouble, call);
///         try { outcome = command(calls); } catch (const Killed&) {}
///         calls.Heal();
///         call = calls.NextCall();
///         ...
///     }
///
/// Once the process has "ended", nothing that the program still does reaches the disk, so a
/// destructor cannot clean up either. When it ends at a Close(), that call returns and the next one
/// throws. Sync() is not passed on to the disk, which saves time: the power cuts show what it does.
class FaultyCalls : public SystemCalls
{
public:
    /// From now on calls are counted from 1, and the one with this number meets the trouble; of the
    /// troubles with a write, the first write from there on.
    void Arm(Trouble trouble, int call);
    /// Ends the trouble: the disk works again, for the same program or for one started anew.
    void Heal();
    /// Takes what was not synced so far, as a power cut at this moment would.
    void CutPower();

    /// Whether the trouble came.
    bool Struck() const { return m_struckAt > 0; }
    /// The call to choose for the next trial; 0 when no call was left for this one.
    int NextCall() const { return Struck() ? m_struckAt + 1 : 0; }
    /// The number of files opened and not closed.
    int OpenDescriptors() const { return m_openDescriptors; }

    Error Open(const std::string& path, int flags, mode_t mode, int& descriptor) override;
    Error Close(int descriptor) override;
    Error Read(int file, off_t offset, std::span<char> buffer, std::size_t& count) override
    {
        return Try(&PosixCalls::Read, file, offset, buffer, count);
    }
    Error Write(int descriptor, off_t offset, std::string_view bytes, std::size_t& count) override;
    Error Truncate(int descriptor, off_t size) override;
    Error Sync(int descriptor) override;
    Error Lock(int file) override { return Try(&PosixCalls::Lock, file); }
    Error Status(int file, FileStatus& status) override
    {
        return Try(&PosixCalls::Status, file, status);
    }
    Error StatusAt(const std::string& path, FileStatus& status) override
    {
        return Try(&PosixCalls::StatusAt, path, status);
    }
    Error AttributeSize(int file, const char* name, std::size_t& size) override
    {
        return Try(&PosixCalls::AttributeSize, file, name, size);
    }
    Error ChangeMode(int file, mode_t mode) override
    {
        return Try(&PosixCalls::ChangeMode, file, mode);
    }
    Error ChangeOwner(int file, uid_t user, gid_t group) override
    {
        return Try(&PosixCalls::ChangeOwner, file, user, group);
    }
    Error Rename(const std::string& from, const std::string& to, unsigned flags) override;
    Error Remove(const std::string& path) override;
    Error ReadLink(const std::string& path, std::string& target) override
    {
        return Try(&PosixCalls::ReadLink, path, target);
    }
    Error MakeFolder(const std::string& path, mode_t mode) override;
    Error RemoveFolder(const std::string& path) override
    {
        return Try(&PosixCalls::RemoveFolder, path);
    }
    Error List(const std::string& path, std::vector<FolderEntry>& entries) override
    {
        return Try(&PosixCalls::List, path, entries);
    }

private:
    /// The trouble of this call, if it meets any.
    std::optional<Trouble> Next(bool isWrite);
    /// The error that a call meets, if any; throws Killed when the process ends.
    Error Meet();
    void Die(Trouble death);

    /// Meets an error or makes the call.
    template <class... Declared, class... Given>
    Error Try(Error (PosixCalls::*call)(Declared...), Given&&... given)
    {
        const Error error = Meet();
        return error ? error : (m_calls.*call)(std::forward<Given>(given)...);
    }

    std::optional<Trouble> m_trouble;
    int m_troubledCall = 0;
    int m_callCount = 0;
    int m_openDescriptors = 0;
    int m_struckAt = 0;
    bool m_isFull = false;
    bool m_isDead = false;
    PosixCalls m_calls;
    Unsynced m_unsynced;
};

} // namespace orvane::testing
