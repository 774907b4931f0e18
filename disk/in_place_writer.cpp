#include "disk/in_place_writer.h"

#include "disk/replacement_file.h"

#include <array>
#include <charconv>
#include <tuple>

#include <fcntl.h>
#include <unistd.h>

namespace orvane {

namespace {

constexpr std::string_view recoveryEnd = ".recovery";
constexpr std::string_view keptEnd = ".kept";

template <class Number>
std::string Hexadecimal(Number number)
{
    std::array<char, 16> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
    return std::string(digits.data(), end);
}

std::string PlaceBeside(std::string_view path, const FileStatus& status)
{
    return FolderOf(path)
        .append(ownNameStart)
        .append(Hexadecimal(status.st_ino))
        .append(recoveryEnd);
}

/// Whether there is no recovery copy at a place whose opening failed so; a folder, pipe or link of
/// its name is none.
bool IsNone(const std::error_code& error)
{
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory ||
           error == std::errc::is_a_directory || error == std::errc::too_many_symbolic_link_levels;
}

} // namespace

InPlaceWriter::InPlaceWriter(SystemCalls& calls, Leftovers& leftovers, std::string stateFolder)
    : m_calls(calls), m_leftovers(leftovers), m_stateFolder(std::move(stateFolder))
{
}

std::error_code InPlaceWriter::Restore(const std::string& path, const FileStatus& status) const
{
    if (const auto error = RestoreFrom(PlaceBeside(path, status), path, status))
        return error;
    if (m_stateFolder.empty())
        return {};
    const std::error_code error = RestoreFrom(PlaceInState(status), path, status);
    // Where the user may not even look, none of this user's copies can lie.
    FileHandle folder(m_calls);
    const bool isShut = error == std::errc::permission_denied &&
                        folder.OpenFolder(m_stateFolder) == std::errc::permission_denied;
    return isShut ? std::error_code() : error;
}

std::error_code InPlaceWriter::Write(const FileHandle& file, const std::string& path,
                                     std::string_view bytes,
                                     std::optional<std::string_view> expected) const
{
    if (const auto error = file.Lock(); error == std::errc::permission_denied)
        return error;
    std::string content;
    if (const auto error = expected ? std::error_code() : file.ReadAll(content))
        return error;
    const RecoveryCopy copy{path, expected.value_or(content), bytes};
    std::string place;
    if (const auto error = Keep(copy, file.Status(), place))
        return error;
    if (const auto error = expected ? file.MustHold(*expected) : std::error_code()) {
        RemoveCopy(place);
        return error;
    }
    const std::error_code error = file.Overwrite(bytes);
    // When not even the old bytes can be written, their copy stays for the next Restore().
    if (error && file.Overwrite(copy.Old))
        return error;
    RemoveCopy(place);
    return error;
}

std::string InPlaceWriter::PlaceInState(const FileStatus& status) const
{
    return std::string(m_stateFolder)
        .append(ownNameStart)
        .append(Hexadecimal(status.st_dev))
        .append("-")
        .append(Hexadecimal(status.st_ino))
        .append(recoveryEnd);
}

/// Puts the copy where it may lie, and gives the `place`.
std::error_code InPlaceWriter::Keep(const RecoveryCopy& copy, const FileStatus& status,
                                    std::string& place) const
{
    const std::string bytes = WriteRecoveryCopy(copy);
    place = PlaceBeside(copy.Path, status);
    std::error_code error = PutCopy(place, bytes);
    if (!IsRefusal(error) || m_stateFolder.empty())
        return error;
    place = PlaceInState(status);
    error = PutCopy(place, bytes);
    if (error == std::errc::not_a_directory) {
        error = MakeFolder(m_calls, m_stateFolder, 0700);
        if (!error)
            error = PutCopy(place, bytes);
    }
    const bool isNowhere = error == std::errc::not_a_directory || error == std::errc::file_exists;
    return isNowhere ? std::make_error_code(std::errc::permission_denied) : error;
}

std::error_code InPlaceWriter::PutCopy(const std::string& place, const std::string& bytes) const
{
    ReplacementFile copy(m_calls, m_leftovers, place, 0600);
    const std::error_code error = copy.Put(FillingWith(bytes));
    if (error && copy.IsInPlace())
        RemoveCopy(place);
    return error;
}

/// Removes a copy that is of no use any more. A failure does no harm: the file holds one of the
/// two contents, and the next Restore() tries again.
void InPlaceWriter::RemoveCopy(const std::string& place) const
{
    FileHandle folder(m_calls);
    if (!Retried([&] { return m_calls.Remove(place); }) && !folder.OpenFolder(FolderOf(place)))
        std::ignore = folder.Sync();
}

/// Gives a copy that must not be put back a name of its own. A failure is passed over: the copy is
/// then looked at again.
void InPlaceWriter::SetAside(const std::string& place) const
{
    const std::string kept = place + std::string(keptEnd);
    std::error_code error = RenameToFree(m_calls, place, kept);
    for (int number = 2; error == std::errc::file_exists; ++number)
        error = RenameToFree(m_calls, place, kept + "-" + std::to_string(number));
}

std::error_code InPlaceWriter::RestoreFrom(const std::string& place, const std::string& path,
                                           const FileStatus& status) const
{
    FileHandle kept(m_calls);
    const auto error = kept.OpenRegular(place, O_RDONLY | O_NOFOLLOW);
    if (error)
        return IsNone(error) ? std::error_code() : error;
    // In a folder that many may write, a stranger must not choose what this file holds.
    const uid_t owner = kept.Status().st_uid;
    if (owner != ::geteuid() && owner != status.st_uid && owner != 0)
        return {};
    return PutBack(kept, place, path);
}

std::error_code InPlaceWriter::PutBack(const FileHandle& kept, const std::string& place,
                                       const std::string& path) const
{
    FileHandle file(m_calls);
    if (const auto error = file.OpenRegular(path, O_RDWR))
        return error;
    if (const auto error = file.Lock(); error == std::errc::permission_denied)
        return error;
    bool hasFinished = false; // a writer that lived, and held the lock until now
    if (const auto error = kept.IsRemoved(hasFinished); error || hasFinished)
        return error;
    std::string bytes;
    if (const auto error = kept.ReadAll(bytes))
        return error;
    std::string content;
    if (const auto error = file.ReadAll(content))
        return error;
    const auto copy = ReadRecoveryCopy(bytes);
    if (!copy || !IsHalfWritten(content, *copy)) {
        SetAside(place);
        return {};
    }
    // All new bytes may be there without lying on the disk yet.
    if (const auto error = content == copy->New ? file.Sync() : file.Overwrite(copy->Old))
        return error;
    RemoveCopy(place);
    return {};
}

} // namespace orvane
