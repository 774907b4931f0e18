#include "disk/replacement_file.h"

#include <cstdint>
#include <random>
#include <tuple>

#include <fcntl.h>

namespace orvane {

namespace {

constexpr std::string_view ownNameEnd = ".tmp";
constexpr std::string_view digits = "0123456789abcdef";
constexpr std::size_t digitCount = 16;

std::string TemporaryName()
{
    std::random_device random;
    std::uint64_t number = (std::uint64_t{random()} << 32) | random();
    std::string name(ownNameStart);
    for (std::size_t i = 0; i < digitCount; ++i, number /= digits.size())
        name.push_back(digits[number % digits.size()]);
    return name.append(ownNameEnd);
}

} // namespace

bool IsTemporaryName(std::string_view name)
{
    if (name.size() != ownNameStart.size() + digitCount + ownNameEnd.size() ||
        !name.starts_with(ownNameStart) || !name.ends_with(ownNameEnd))
        return false;
    name = name.substr(ownNameStart.size(), digitCount);
    return name.find_first_not_of(digits) == std::string_view::npos;
}

std::error_code MakeFolder(Disk& disk, const std::string& path, mode_t mode)
{
    const std::size_t last = path.find_last_not_of('/');
    const std::string name = last == std::string::npos ? path : path.substr(0, last + 1);
    OpenFile parent(disk);
    if (const auto error = parent.OpenFolder(FolderPart(name)))
        return error;
    if (const auto error = Retried([&] { return disk.MakeFolder(name, mode); }))
        return error;
    const std::error_code error = parent.Sync();
    if (error)
        std::ignore = Retried([&] { return disk.RemoveFolder(name); });
    return error;
}

bool IsRefusal(const std::error_code& error)
{
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system ||
           // A file that is mounted by itself cannot be renamed over.
           error == std::errc::device_or_resource_busy || error == std::errc::cross_device_link;
}

NewFile::NewFile(Disk& disk, std::string path, mode_t mode)
    : m_disk(disk), m_path(std::move(path)), m_mode(mode)
{
}

NewFile::NewFile(Disk& disk, std::string path, const FileStatus& like)
    : m_disk(disk), m_path(std::move(path)), m_mode(0600), m_like(&like)
{
}

std::error_code NewFile::Put(std::string_view bytes)
{
    m_isInPlace = false;
    OpenFile folder(m_disk);
    const std::string path = FolderPart(m_path);
    if (const auto error = folder.OpenFolder(path))
        return error;
    RemoveLeftovers(path);
    const std::string temporary = path + TemporaryName();
    OpenFile file(m_disk);
    if (const auto error = PutThrough(file, temporary, bytes)) {
        if (error != std::errc::file_exists)
            std::ignore = Retried([&] { return m_disk.Remove(temporary); });
        return error;
    }
    m_isInPlace = true;
    return folder.Sync();
}

/// Writes the temporary file and renames it to the path.
std::error_code NewFile::PutThrough(OpenFile& file, const std::string& temporary,
                                    std::string_view bytes)
{
    if (const auto error = file.Open(temporary, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, m_mode))
        return error;
    // Without a lock another program might take the file for a leftover; then the renaming fails.
    std::ignore = file.Lock();
    if (const auto error = file.WriteAll(bytes))
        return error;
    if (const auto error = m_like ? file.TakeRightsOf(*m_like) : std::error_code())
        return error;
    if (const auto error = file.Sync())
        return error;
    return Retried([&] { return m_disk.Rename(temporary, m_path); });
}

/// Removes the temporary files of programs that are no more.
void NewFile::RemoveLeftovers(const std::string& folder) const
{
    std::vector<FolderEntry> entries;
    if (Retried([&] { return m_disk.List(folder, entries); }))
        return;
    for (const FolderEntry& entry : entries) {
        OpenFile leftover(m_disk);
        if (!IsTemporaryName(entry.Name) ||
            leftover.OpenRegular(folder + entry.Name, O_RDWR | O_NOFOLLOW) || leftover.Lock())
            continue;
        std::ignore = Retried([&] { return m_disk.Remove(folder + entry.Name); });
    }
}

} // namespace orvane
