#include "disk/replacement_file.h"

#include <cstdint>
#include <cstdio>
#include <random>
#include <tuple>

#include <fcntl.h>
#include <unistd.h>

namespace orvane {

namespace {

constexpr std::string_view ownNameEnd = ".tmp";
constexpr std::string_view digits = "0123456789abcdef";
constexpr std::size_t digitCount = 16;

std::string TemporaryName()
{
    // Not std::random_device, which asks the processor for its features each time it is made.
    std::uint64_t number = 0;
    if (::getentropy(&number, sizeof number) != 0)
        number = std::random_device()();
    std::string name(ownNameStart);
    for (std::size_t i = 0; i < digitCount; ++i, number /= digits.size())
        name.push_back(digits[number % digits.size()]);
    return name.append(ownNameEnd);
}

/// The mode of a file that becomes like another one: read and written by its owner, and read by all
/// where all may read the other one, so that nobody ever has more rights than there.
mode_t FirstModeOf(const FileStatus& like)
{
    constexpr mode_t readByAll = S_IRUSR | S_IRGRP | S_IROTH;
    constexpr mode_t ownersOwn = S_IRUSR | S_IWUSR;
    return (like.st_mode & readByAll) == readByAll ? ownersOwn | readByAll : ownersOwn;
}

/// Whether a call failed because the system or this file system does not have it.
bool IsUnknownCall(const std::error_code& error)
{
    return error == std::errc::invalid_argument || error == std::errc::not_supported ||
           error == std::errc::function_not_supported;
}

} // namespace

Filling FillingWith(std::string_view bytes)
{
    return FillingWith(Pieces{bytes, {}});
}

Filling FillingWith(Pieces content)
{
    return [content](const FileHandle& file) {
        const auto error = file.WriteAll(content.First);
        return error ? error : file.WriteAll(content.Second, content.First.size());
    };
}

bool IsTemporaryName(std::string_view name)
{
    if (name.size() != ownNameStart.size() + digitCount + ownNameEnd.size() ||
        !name.starts_with(ownNameStart) || !name.ends_with(ownNameEnd))
        return false;
    name = name.substr(ownNameStart.size(), digitCount);
    return name.find_first_not_of(digits) == std::string_view::npos;
}

std::error_code MakeFolder(SystemCalls& calls, const std::string& path, mode_t mode)
{
    const std::size_t last = path.find_last_not_of('/');
    const std::string name = last == std::string::npos ? path : path.substr(0, last + 1);
    FileHandle parent(calls);
    if (const auto error = parent.OpenFolder(FolderOf(name)))
        return error;
    if (const auto error = Retried([&] { return calls.MakeFolder(name, mode); }))
        return error;
    const std::error_code error = parent.Sync();
    if (error)
        std::ignore = Retried([&] { return calls.RemoveFolder(name); });
    return error;
}

bool IsRefusal(const std::error_code& error)
{
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system ||
           // A file that is mounted by itself cannot be renamed over.
           error == std::errc::device_or_resource_busy || error == std::errc::cross_device_link;
}

std::error_code RenameToFree(SystemCalls& calls, const std::string& from, const std::string& to)
{
    const auto error = Retried([&] { return calls.Rename(from, to, RENAME_NOREPLACE); });
    if (!IsUnknownCall(error))
        return error;
    std::string target;
    const auto free = Retried([&] { return calls.ReadLink(to, target); });
    if (free != std::errc::no_such_file_or_directory)
        return std::make_error_code(std::errc::file_exists);
    return Retried([&] { return calls.Rename(from, to); });
}

void Leftovers::RemoveFrom(const std::string& folder)
{
    std::vector<FolderEntry> entries;
    if (m_lookedThrough.contains(folder) || Retried([&] { return m_calls.List(folder, entries); }))
        return;
    m_lookedThrough.insert(folder);
    for (const FolderEntry& entry : entries) {
        FileHandle leftover(m_calls);
        if (!IsTemporaryName(entry.Name) ||
            leftover.OpenRegular(folder + entry.Name, O_RDWR | O_NOFOLLOW) || leftover.Lock())
            continue;
        std::ignore = Retried([&] { return m_calls.Remove(folder + entry.Name); });
    }
}

ReplacementFile::ReplacementFile(SystemCalls& calls, Leftovers& leftovers, std::string path,
                                 mode_t mode)
    : m_calls(calls), m_leftovers(leftovers), m_path(std::move(path)), m_mode(mode)
{
}

ReplacementFile::ReplacementFile(SystemCalls& calls, Leftovers& leftovers, std::string path,
                                 const FileStatus& like, Rights rights)
    : m_calls(calls),
      m_leftovers(leftovers),
      m_path(std::move(path)),
      m_mode(FirstModeOf(like)),
      m_like(like),
      m_rights(rights)
{
}

std::error_code ReplacementFile::Put(const Filling& fill, const Former& former)
{
    m_isInPlace = false;
    FileHandle folder(m_calls);
    const std::string path = FolderOf(m_path);
    if (const auto error = folder.OpenFolder(path))
        return error;
    m_leftovers.RemoveFrom(path);
    const std::string temporary = path + TemporaryName();
    FileHandle file(m_calls);
    if (const auto error = PutThrough(file, temporary, fill, former)) {
        if (error != std::errc::file_exists && !m_isLost &&
            Retried([&] { return m_calls.Remove(temporary); }))
            m_leftovers.Expect(path);
        return error;
    }
    m_isInPlace = true;
    return folder.Sync();
}

/// Writes the temporary file and renames it to the path.
std::error_code ReplacementFile::PutThrough(FileHandle& file, const std::string& temporary,
                                            const Filling& fill, const Former& former)
{
    if (const auto error = file.Open(temporary, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, m_mode))
        return error;
    // Without a lock another program might take the file for a leftover; then the renaming fails.
    std::ignore = file.Lock();
    if (const auto error = fill(file))
        return error;
    if (const auto error = TakeRights(file))
        return error;
    if (const auto error = file.Sync())
        return error;
    return TakePlace(file, temporary, former);
}

std::error_code ReplacementFile::TakePlace(const FileHandle& file, const std::string& temporary,
                                           const Former& former)
{
    const auto rename = [&] { return Retried([&] { return m_calls.Rename(temporary, m_path); }); };
    if (former.Is == Former::Kind::Anything)
        return rename();
    if (former.Is == Former::Kind::Nothing) {
        const auto error = RenameToFree(m_calls, temporary, m_path);
        return error == std::errc::file_exists ? std::make_error_code(std::errc::operation_canceled)
                                               : error;
    }
    // Most saves are seen here, before anybody meets the new file.
    auto error = IsAsRead(former.AsRead) ? std::error_code() : MustHold(m_path, former.Bytes);
    if (error)
        return error;
    error = Exchange(temporary);
    if (IsUnknownCall(error)) {
        error = MustHold(m_path, former.Bytes);
        return error ? error : rename();
    }
    if (error)
        return error;
    error = MustHold(temporary, former.Bytes);
    if (!error)
        error = Retried([&] { return m_calls.Remove(temporary); });
    if (!error)
        return {};
    const auto lost = GiveBack(file.Status(), temporary);
    m_isLost = static_cast<bool>(lost);
    return m_isLost ? lost : error;
}

/// Whether the path has a file that is as it was then by its size and times, which is no proof.
bool ReplacementFile::IsAsRead(const FileStatus& status) const
{
    FileStatus now{};
    return !Retried([&] { return m_calls.StatusAt(m_path, now); }) && AreUnchanged(now, status);
}

/// operation_canceled when the path does not have a file with these bytes.
std::error_code ReplacementFile::MustHold(const std::string& path, std::string_view bytes) const
{
    FileHandle now(m_calls);
    const auto error = now.OpenRegular(path, O_RDONLY | O_NOFOLLOW);
    if (error == std::errc::no_such_file_or_directory ||
        error == std::errc::too_many_symbolic_link_levels)
        return std::make_error_code(std::errc::operation_canceled);
    return error ? error : now.MustHold(bytes);
}

std::error_code ReplacementFile::Exchange(const std::string& temporary) const
{
    const auto error = Retried([&] { return m_calls.Rename(temporary, m_path, RENAME_EXCHANGE); });
    return error == std::errc::no_such_file_or_directory
               ? std::make_error_code(std::errc::operation_canceled)
               : error;
}

/// Exchanges the names again, where `given` has the path now. The other program may save once more
/// meanwhile: then that file comes out, and it is the newest one that must have the path.
std::error_code ReplacementFile::GiveBack(FileStatus given, const std::string& temporary)
{
    for (;;) {
        FileHandle next(m_calls);
        FileHandle out(m_calls);
        auto error = next.Open(temporary, O_PATH | O_NOFOLLOW);
        if (!error)
            error = Exchange(temporary);
        if (!error)
            error = out.Open(temporary, O_PATH | O_NOFOLLOW);
        if (error)
            return std::make_error_code(std::errc::io_error);
        if (AreSameFile(out.Status(), given))
            return {};
        given = next.Status();
    }
}

std::error_code ReplacementFile::TakeRights(const FileHandle& file) const
{
    if (!m_like)
        return {};
    return m_rights == Rights::All ? file.TakeRightsOf(*m_like) : file.TakePermissionsOf(*m_like);
}

} // namespace orvane
