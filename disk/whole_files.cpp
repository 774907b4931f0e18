#include "disk/whole_files.h"

#include "core/text.h"

#include <tuple>

#include <fcntl.h>

namespace orvane {

namespace {

constexpr int linkLimit = 40;
constexpr off_t sizeLimit = 512 << 20;

/// Puts a file with the bytes of `old` in the place that `file` has taken from it.
void PutBack(const FileHandle& old, ReplacementFile& file)
{
    std::string bytes;
    if (!old.ReadAll(bytes))
        std::ignore = file.Put(FillingWith(bytes));
}

/// Whether a path that could not be opened so has no file of its own: nothing, or a link.
bool IsNoFile(const std::error_code& missing)
{
    return missing == std::errc::no_such_file_or_directory ||
           missing == std::errc::too_many_symbolic_link_levels;
}

/// The whole content; not_enough_memory when it is more than 512 MB.
std::error_code ReadWhole(const FileHandle& file, std::string& bytes)
{
    if (file.Status().st_size > sizeLimit)
        return std::make_error_code(std::errc::not_enough_memory);
    return file.ReadAll(bytes);
}

} // namespace

WholeFiles::WholeFiles(SystemCalls& calls, std::string stateFolder)
    : m_calls(calls), m_leftovers(calls), m_inPlace(calls, m_leftovers, std::move(stateFolder))
{
}

/// Turns the path of a symbolic link into that of what it leads to, which may be missing.
std::error_code WholeFiles::FollowLinks(std::string& path) const
{
    for (int i = 0; i < linkLimit; ++i) {
        std::string target;
        const auto error = Retried([&] { return m_calls.ReadLink(path, target); });
        const bool isEnd =
            error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory;
        if (error)
            return isEnd && !path.empty() ? std::error_code() : error;
        path = target.starts_with('/') ? target : FolderOf(path) + target;
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

/// Opens the regular file that a path leads to, and turns the path of a symbolic link into that of
/// what it leads to, which may be missing.
std::error_code WholeFiles::OpenFollowed(std::string& path, int flags, FileHandle& file) const
{
    // Most paths are no links, and their links need not be read.
    auto error = file.OpenRegular(path, flags | O_NOFOLLOW);
    if (error == std::errc::too_many_symbolic_link_levels) {
        error = FollowLinks(path);
        if (!error)
            error = file.OpenRegular(path, flags);
    }
    return error;
}

std::error_code WholeFiles::Open(std::string path, FileHandle& file) const
{
    if (const auto error = OpenFollowed(path, O_RDONLY, file))
        return error;
    return m_inPlace.Restore(path, file.Status());
}

std::error_code WholeFiles::Read(const std::string& path, std::string& bytes) const
{
    FileHandle file(m_calls);
    if (const auto error = Open(path, file))
        return error;
    m_lastRead = file.Status();
    return ReadWhole(file, bytes);
}

std::error_code WholeFiles::ReadItself(const std::string& path, std::string& bytes) const
{
    FileHandle file(m_calls);
    const auto error = file.OpenRegular(path, O_RDONLY | O_NOFOLLOW);
    return error ? error : ReadWhole(file, bytes);
}

std::error_code WholeFiles::MustBeCopy(const std::string& path, const std::string& other,
                                       std::string_view bytes) const
{
    FileHandle copy(m_calls);
    if (const auto error = copy.OpenRegular(path, O_RDONLY))
        return error;
    FileStatus status{};
    if (const auto error = Retried([&] { return m_calls.StatusAt(other, status); }))
        return error;
    return AreSameFile(copy.Status(), status) ? std::make_error_code(std::errc::operation_canceled)
                                              : copy.MustHold(bytes);
}

std::error_code WholeFiles::Replace(std::string path, Pieces content,
                                    std::optional<std::string_view> expected)
{
    FileHandle old(m_calls);
    if (const auto error = OpenFollowed(path, O_RDWR, old)) {
        if (error != std::errc::no_such_file_or_directory || path.empty())
            return error;
        return expected ? std::make_error_code(std::errc::operation_canceled)
                        : PutWhereNoneIs(path, FillingWith(content));
    }
    if (const auto error = m_inPlace.Restore(path, old.Status()))
        return error;
    bool hasAccessList = false;
    if (const auto error = old.HasAccessList(hasAccessList))
        return error;
    if (old.Status().st_nlink == 1 && !hasAccessList) {
        // Else another Orvane might take the old file for a leftover while it has that name.
        std::ignore = old.Lock();
        ReplacementFile::Former former{};
        if (expected)
            former = {ReplacementFile::Former::Kind::File, *expected, m_lastRead};
        ReplacementFile file(m_calls, m_leftovers, path, old.Status(),
                             ReplacementFile::Rights::All);
        const auto error = file.Put(FillingWith(content), former);
        if (error && file.IsInPlace())
            PutBack(old, file);
        if (!IsRefusal(error) || file.IsInPlace())
            return error;
    }
    return m_inPlace.Write(old, path, Join({content.First, content.Second}), expected);
}

std::error_code WholeFiles::PutNew(const std::string& path, const Filling& fill,
                                   const std::string& like)
{
    FileHandle old(m_calls);
    // What is like another file may be as read-only as that one was, and is replaced all the same.
    const auto missing = old.OpenRegular(path, (like.empty() ? O_RDWR : O_RDONLY) | O_NOFOLLOW);
    if (missing && !IsNoFile(missing))
        return missing;
    FileStatus rights = old.Status();
    if (!like.empty())
        if (const auto error = Retried([&] { return m_calls.StatusAt(like, rights); }))
            return error;
    if (missing && like.empty())
        return PutWhereNoneIs(path, fill);
    ReplacementFile file(m_calls, m_leftovers, path, rights, ReplacementFile::Rights::Permissions);
    return PutOver(file, path, fill, old, missing);
}

std::error_code WholeFiles::PutPrivate(const std::string& path, const Filling& fill)
{
    FileHandle old(m_calls);
    const auto missing = old.OpenRegular(path, O_RDONLY | O_NOFOLLOW);
    if (missing && !IsNoFile(missing))
        return missing;
    ReplacementFile file(m_calls, m_leftovers, path, 0600);
    return PutOver(file, path, fill, old, missing);
}

std::error_code WholeFiles::PutIfFree(std::string path, const Filling& fill,
                                      const std::string& like)
{
    FileStatus rights{};
    if (const auto error = Retried([&] { return m_calls.StatusAt(like, rights); }))
        return error;
    if (const auto error = FollowLinks(path))
        return error;
    ReplacementFile file(m_calls, m_leftovers, path, rights, ReplacementFile::Rights::Permissions);
    const auto error = file.Put(fill, {ReplacementFile::Former::Kind::Nothing, {}, {}});
    if (error && file.IsInPlace())
        std::ignore = Retried([&] { return m_calls.Remove(path); });
    return error;
}

/// Puts the file in place of `old`, which comes back after a failure; `missing` says why there is
/// none.
std::error_code WholeFiles::PutOver(ReplacementFile& file, const std::string& path,
                                    const Filling& fill, const FileHandle& old,
                                    const std::error_code& missing)
{
    const auto error = file.Put(fill);
    // A link that is gone stays so: the new file holds what was wanted.
    if (error && file.IsInPlace() && !missing) {
        ReplacementFile before(m_calls, m_leftovers, path, old.Status(),
                               ReplacementFile::Rights::Permissions);
        PutBack(old, before);
    } else if (error && file.IsInPlace() && missing == std::errc::no_such_file_or_directory) {
        std::ignore = Retried([&] { return m_calls.Remove(path); });
    }
    return error;
}

std::error_code WholeFiles::PutWhereNoneIs(const std::string& path, const Filling& fill)
{
    ReplacementFile file(m_calls, m_leftovers, path, 0666);
    const auto error = file.Put(fill);
    if (error && file.IsInPlace())
        std::ignore = Retried([&] { return m_calls.Remove(path); });
    return error;
}

} // namespace orvane
