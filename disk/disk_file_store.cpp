#include "disk/disk_file_store.h"

#include "core/file_names.h"
#include "disk/replacement_file.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include <dirent.h>
#include <fcntl.h>

namespace orvane {

namespace {

constexpr std::chrono::seconds longestWait{1};

/// The bytes of a path; empty when no file can have it.
std::string PathBytes(TextView path)
{
    std::string bytes = ToUtf8(path);
    // Where each character became one byte, none was lost.
    const bool isKept = bytes.size() == path.size() || FromUtf8(bytes) == path;
    return isKept && path.find(u'\0') == TextView::npos ? bytes : std::string();
}

/// The folder's bytes with one "/" at their end; empty as PathBytes() is.
std::string FolderBytes(TextView folder)
{
    std::string bytes = PathBytes(folder);
    if (!bytes.empty() && bytes.back() != '/')
        bytes.push_back('/');
    return bytes;
}

mode_t KindOf(unsigned char entryType)
{
    return DTTOIF(entryType);
}

void SortIgnoringCase(std::vector<Text>& names)
{
    std::vector<std::pair<Text, Text>> keyed;
    keyed.reserve(names.size());
    for (Text& name : names)
        keyed.emplace_back(ToLower(TextView(name)), std::move(name));
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
                   [](auto& entry) { return std::move(entry.second); });
}

} // namespace

DiskFileStore::DiskFileStore(SystemCalls& calls, TextView stateFolder)
    : m_calls(calls), m_files(calls, FolderBytes(stateFolder))
{
}

bool DiskFileStore::FileExists(TextView path) const
{
    FileHandle file(m_calls);
    return !file.OpenRegular(PathBytes(path), O_RDONLY);
}

bool DiskFileStore::IsTaken(TextView path) const
{
    std::string target;
    const std::string name = PathBytes(path);
    const auto error = Retried([&] { return m_calls.ReadLink(name, target); });
    return !error || (error == std::errc::invalid_argument && !FolderExists(path));
}

Outcome<bool> DiskFileStore::IsCopyOf(TextView path, TextView other, std::string_view bytes) const
{
    const std::string name = PathBytes(path);
    return UnlessCancelled(name, m_files.MustBeCopy(name, PathBytes(other), bytes));
}

std::optional<FileFacts> DiskFileStore::Facts(TextView path) const
{
    const std::string name = PathBytes(path);
    FileStatus status{};
    if (Retried([&] { return m_calls.StatusAt(name, status); }) || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string target;
    const bool isLink = !Retried([&] { return m_calls.ReadLink(name, target); });
    return FileFacts{.Size = static_cast<std::uint64_t>(status.st_size),
                     .Written = status.st_mtim.tv_sec * 1'000'000'000 + status.st_mtim.tv_nsec,
                     .Number = status.st_ino,
                     .IsLink = isLink};
}

Outcome<std::string> DiskFileStore::Read(TextView path) const
{
    const std::string name = PathBytes(path);
    std::string bytes;
    if (const auto error = m_files.Read(name, bytes))
        return FaultAt(name, error);
    return bytes;
}

Outcome<std::string> DiskFileStore::ReadItself(TextView path) const
{
    const std::string name = PathBytes(path);
    std::string bytes;
    if (const auto error = m_files.ReadItself(name, bytes))
        return FaultAt(name, error);
    return bytes;
}

Done DiskFileStore::Replace(TextView path, std::string_view bytes)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, m_files.Replace(name, {bytes, {}}, {}));
}

Outcome<bool> DiskFileStore::Exchange(TextView path, std::string_view old, std::string_view bytes,
                                      std::string_view rest)
{
    const std::string name = PathBytes(path);
    return UnlessCancelled(name, m_files.Replace(name, {bytes, rest}, old));
}

Done DiskFileStore::PutNew(TextView path, std::string_view bytes, TextView like)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, m_files.PutNew(name, FillingWith(bytes), PathBytes(like)));
}

Done DiskFileStore::PutPrivate(TextView path, std::string_view bytes)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, m_files.PutPrivate(name, FillingWith(bytes)));
}

Outcome<bool> DiskFileStore::PutIfFree(TextView path, std::string_view bytes, TextView like)
{
    const std::string name = PathBytes(path);
    return UnlessCancelled(name, m_files.PutIfFree(name, FillingWith(bytes), PathBytes(like)));
}

Done DiskFileStore::Copy(TextView from, TextView to, Progress* progress)
{
    const std::string source = PathBytes(from);
    const std::string target = PathBytes(to);
    if (AreSame(source, target))
        return {};
    FileHandle file(m_calls);
    if (const auto error = m_files.Open(source, file))
        return FaultAt(source, error);
    const auto size = static_cast<std::uint64_t>(file.Status().st_size);
    const auto goesOn = [&](std::uint64_t done) {
        return progress == nullptr || progress->GoOn(done, size);
    };
    const auto error = m_files.PutNew(
        target, [&](const FileHandle& copy) { return copy.CopyFrom(file, goesOn); }, {});
    if (error == std::errc::operation_canceled)
        return Fault::Cancelled;
    return DoneAt(target, error);
}

Done DiskFileStore::Remove(TextView path)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, Retried([&] { return m_calls.Remove(name); }));
}

Done DiskFileStore::MakeFolder(TextView path, Access access)
{
    const std::string name = PathBytes(path);
    const mode_t mode = access == Access::OwnerAlone ? 0700 : 0777;
    return DoneAt(name, orvane::MakeFolder(m_calls, name, mode));
}

std::shared_ptr<const void> DiskFileStore::LockFolder(TextView folder)
{
    // The folder itself is locked: it stays when the files in it are replaced.
    auto held = std::make_shared<FileHandle>(m_calls);
    if (held->OpenFolder(FolderBytes(folder)))
        return nullptr;
    const auto end = std::chrono::steady_clock::now() + longestWait;
    std::error_code error = held->Lock();
    while (error == std::errc::permission_denied && m_waitsForLocks) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        error = held->Lock();
        // Whoever keeps the lock so long will not give it back soon.
        m_waitsForLocks = !error || std::chrono::steady_clock::now() < end;
    }
    return error ? nullptr : held;
}

std::vector<Text> DiskFileStore::Files(TextView folder) const
{
    std::vector<Text> names;
    std::ignore = Names(folder, S_IFREG, names);
    return names;
}

Outcome<std::vector<Text>> DiskFileStore::SubFolders(TextView folder) const
{
    std::vector<Text> names;
    if (const auto error = Names(folder, S_IFDIR, names))
        return FaultAt(FolderBytes(folder), error);
    return names;
}

bool DiskFileStore::FolderExists(TextView path) const
{
    FileStatus status{};
    const std::string name = PathBytes(path);
    return !Retried([&] { return m_calls.StatusAt(name, status); }) && S_ISDIR(status.st_mode);
}

bool DiskFileStore::AreSame(const std::string& path, const std::string& other) const
{
    FileStatus one{};
    FileStatus two{};
    return !Retried([&] { return m_calls.StatusAt(path, one); }) && S_ISREG(one.st_mode) &&
           !Retried([&] { return m_calls.StatusAt(other, two); }) && AreSameFile(one, two);
}

/// The names of what is of this kind in a folder, links followed; nothing of the store's own.
DiskFileStore::Error DiskFileStore::Names(TextView folder, mode_t kind,
                                          std::vector<Text>& names) const
{
    const std::string path = FolderBytes(folder);
    std::vector<FolderEntry> entries;
    if (const auto error = Retried([&] { return m_calls.List(path, entries); }))
        return error;
    for (const FolderEntry& entry : entries) {
        Text name = FromUtf8(entry.Name);
        if (entry.Name.starts_with(ownNameStart) || ToUtf8(name) != entry.Name)
            continue;
        mode_t entryKind = KindOf(entry.Type);
        if (entry.Type == DT_LNK || entry.Type == DT_UNKNOWN) {
            FileStatus status{};
            if (Retried([&] { return m_calls.StatusAt(path + entry.Name, status); }))
                continue;
            entryKind = status.st_mode & S_IFMT;
        }
        if (entryKind == kind)
            names.push_back(std::move(name));
    }
    SortIgnoringCase(names);
    return {};
}

/// The fault of a failed call, a missing file told from a missing folder.
Fault DiskFileStore::FaultAt(const std::string& path, const Error& error) const
{
    if (path.empty())
        return Fault::BadFileName;
    FileStatus folder{};
    const bool isMissing = error == std::errc::no_such_file_or_directory &&
                           Retried([&] { return m_calls.StatusAt(FolderOf(path), folder); });
    return isMissing ? Fault::PathNotFound : FaultOf(error);
}

/// Whether a call was done that is cancelled when the files are not as they were.
Outcome<bool> DiskFileStore::UnlessCancelled(const std::string& path, const Error& error) const
{
    if (error && error != std::errc::operation_canceled)
        return FaultAt(path, error);
    return !error;
}

Done DiskFileStore::DoneAt(const std::string& path, const Error& error) const
{
    if (error)
        return FaultAt(path, error);
    return {};
}

} // namespace orvane
