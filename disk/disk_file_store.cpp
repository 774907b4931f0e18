#include "disk/disk_file_store.h"

#include "core/file_names.h"
#include "disk/replacement_file.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include <dirent.h>
#include <fcntl.h>

namespace orvane {

namespace {

constexpr int linkLimit = 40;

/// The bytes of a path; empty when no file can have it.
std::string PathBytes(TextView path)
{
    std::string bytes = ToUtf8(path);
    const bool isPath = path.find(u'\0') == TextView::npos && FromUtf8(bytes) == path;
    return isPath ? bytes : std::string();
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

/// Puts a file with the bytes of `old` in the place that `file` has taken from it.
void PutBack(const OpenFile& old, NewFile& file)
{
    std::string bytes;
    if (!old.ReadAll(bytes))
        std::ignore = file.Put(bytes);
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

DiskFileStore::DiskFileStore(Disk& disk, TextView stateFolder)
    : m_disk(disk), m_inPlace(disk, FolderBytes(stateFolder))
{
}

bool DiskFileStore::FileExists(TextView path) const
{
    OpenFile file(m_disk);
    return !file.OpenRegular(PathBytes(path), O_RDONLY);
}

Outcome<std::string> DiskFileStore::Read(TextView path) const
{
    const std::string name = PathBytes(path);
    std::string bytes;
    if (const auto error = ReadFile(name, bytes))
        return FaultAt(name, error);
    return bytes;
}

Done DiskFileStore::Replace(TextView path, std::string_view bytes)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, ReplaceFile(name, bytes));
}

Done DiskFileStore::Copy(TextView from, TextView to)
{
    const std::string source = PathBytes(from);
    const std::string target = PathBytes(to);
    FileStatus one{};
    FileStatus other{};
    if (!Retried([&] { return m_disk.StatusAt(source, one); }) && S_ISREG(one.st_mode) &&
        !Retried([&] { return m_disk.StatusAt(target, other); }) && one.st_dev == other.st_dev &&
        one.st_ino == other.st_ino)
        return {};
    std::string bytes;
    if (const auto error = ReadFile(source, bytes))
        return FaultAt(source, error);
    return DoneAt(target, ReplaceFile(target, bytes));
}

Done DiskFileStore::Remove(TextView path)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, Retried([&] { return m_disk.Remove(name); }));
}

Done DiskFileStore::MakeFolder(TextView path)
{
    const std::string name = PathBytes(path);
    return DoneAt(name, orvane::MakeFolder(m_disk, name, 0777));
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
    return !Retried([&] { return m_disk.StatusAt(name, status); }) && S_ISDIR(status.st_mode);
}

/// Turns the path of a symbolic link into that of what it leads to, which may be missing.
DiskFileStore::Error DiskFileStore::FollowLinks(std::string& path) const
{
    for (int i = 0; i < linkLimit; ++i) {
        std::string target;
        const auto error = Retried([&] { return m_disk.ReadLink(path, target); });
        const bool isEnd =
            error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory;
        if (error)
            return isEnd && !path.empty() ? Error() : error;
        path = target.starts_with('/') ? target : FolderPart(path) + target;
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

DiskFileStore::Error DiskFileStore::ReadFile(std::string path, std::string& bytes) const
{
    if (const auto error = FollowLinks(path))
        return error;
    OpenFile file(m_disk);
    if (const auto error = file.OpenRegular(path, O_RDONLY))
        return error;
    if (const auto error = m_inPlace.Restore(path, file.Status()))
        return error;
    return file.ReadAll(bytes);
}

DiskFileStore::Error DiskFileStore::ReplaceFile(std::string path, std::string_view bytes)
{
    if (const auto error = FollowLinks(path))
        return error;
    OpenFile old(m_disk);
    if (const auto error = old.OpenRegular(path, O_RDWR)) {
        const bool isNew = error == std::errc::no_such_file_or_directory;
        return isNew ? PutNew(path, bytes) : error;
    }
    if (const auto error = m_inPlace.Restore(path, old.Status()))
        return error;
    bool hasAccessList = false;
    if (const auto error = old.HasAccessList(hasAccessList))
        return error;
    if (old.Status().st_nlink == 1 && !hasAccessList) {
        NewFile file(m_disk, path, old.Status());
        const auto error = file.Put(bytes);
        if (error && file.IsInPlace())
            PutBack(old, file);
        if (!IsRefusal(error) || file.IsInPlace())
            return error;
    }
    return m_inPlace.Write(old, path, bytes);
}

DiskFileStore::Error DiskFileStore::PutNew(const std::string& path, std::string_view bytes)
{
    NewFile file(m_disk, path, 0666);
    const auto error = file.Put(bytes);
    if (error && file.IsInPlace())
        std::ignore = Retried([&] { return m_disk.Remove(path); });
    return error;
}

/// The names of what is of this kind in a folder, links followed; nothing of the store's own.
DiskFileStore::Error DiskFileStore::Names(TextView folder, mode_t kind,
                                          std::vector<Text>& names) const
{
    const std::string path = FolderBytes(folder);
    std::vector<FolderEntry> entries;
    if (const auto error = Retried([&] { return m_disk.List(path, entries); }))
        return error;
    for (const FolderEntry& entry : entries) {
        Text name = FromUtf8(entry.Name);
        if (entry.Name.starts_with(ownNameStart) || ToUtf8(name) != entry.Name)
            continue;
        mode_t entryKind = KindOf(entry.Type);
        if (entry.Type == DT_LNK || entry.Type == DT_UNKNOWN) {
            FileStatus status{};
            if (Retried([&] { return m_disk.StatusAt(path + entry.Name, status); }))
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
                           Retried([&] { return m_disk.StatusAt(FolderPart(path), folder); });
    return isMissing ? Fault::PathNotFound : FaultOf(error);
}

Done DiskFileStore::DoneAt(const std::string& path, const Error& error) const
{
    if (error)
        return FaultAt(path, error);
    return {};
}

} // namespace orvane
