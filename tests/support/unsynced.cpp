#include "tests/support/unsynced.h"

#include "disk/file_handle.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <fcntl.h>
#include <unistd.h>

namespace orvane::testing {

namespace {

std::pair<dev_t, ino_t> IdentityOf(int descriptor)
{
    FileStatus status{};
    ::fstat(descriptor, &status);
    return {status.st_dev, status.st_ino};
}

std::pair<dev_t, ino_t> FolderIdentity(const std::string& path)
{
    FileStatus status{};
    ::stat(FolderOf(path).c_str(), &status);
    return {status.st_dev, status.st_ino};
}

std::string BytesOf(int descriptor)
{
    FileStatus status{};
    ::fstat(descriptor, &status);
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    if (::pread(descriptor, bytes.data(), bytes.size(), 0) != status.st_size)
        throw std::runtime_error("the test cannot read back a file");
    return bytes;
}

} // namespace

Unsynced::~Unsynced()
{
    for (const auto& [identity, content] : m_contents)
        ::close(content.Descriptor);
}

void Unsynced::Opened(int descriptor, const std::string& path)
{
    m_paths[descriptor] = path;
}

void Unsynced::BeforeWriting(int descriptor)
{
    const Identity identity = IdentityOf(descriptor);
    if (m_contents.contains(identity))
        return;
    // A descriptor of our own shares no lock with the program's.
    const int own = ::open(m_paths.at(descriptor).c_str(), O_RDWR | O_CLOEXEC);
    if (own == -1 || IdentityOf(own) != identity)
        throw std::runtime_error("the test cannot follow a file");
    m_contents[identity] = {own, BytesOf(own)};
}

void Unsynced::Synced(int descriptor)
{
    const Identity identity = IdentityOf(descriptor);
    if (const auto found = m_contents.find(identity); found != m_contents.end()) {
        ::close(found->second.Descriptor);
        m_contents.erase(found);
    }
    std::erase_if(m_names, [&](const NameChange& change) { return change.Folder == identity; });
}

void Unsynced::Created(const std::string& path)
{
    m_names.push_back({FolderIdentity(path), [path] { ::unlink(path.c_str()); }});
}

void Unsynced::MadeFolder(const std::string& path)
{
    m_names.push_back({FolderIdentity(path), [path] { std::filesystem::remove_all(path); }});
}

Unsynced::Undo Unsynced::BeforeRemoving(const std::string& path) const
{
    FileStatus status{};
    if (::stat(path.c_str(), &status) != 0)
        return [] {};
    std::ifstream file(path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    return [path, bytes, mode = status.st_mode] {
        std::ofstream(path, std::ios::binary) << bytes;
        ::chmod(path.c_str(), mode & 07777);
    };
}

void Unsynced::Removed(const std::string& path, Undo undo)
{
    m_names.push_back({FolderIdentity(path), std::move(undo)});
}

void Unsynced::Renamed(const std::string& from, const std::string& to, Undo undo)
{
    m_names.push_back({FolderIdentity(to), [from, to, undo = std::move(undo)] {
                           const unsigned flags = undo ? 0 : RENAME_EXCHANGE;
                           ::renameat2(AT_FDCWD, to.c_str(), AT_FDCWD, from.c_str(), flags);
                           if (undo)
                               undo();
                       }});
}

void Unsynced::LoseContent()
{
    for (const auto& [identity, content] : m_contents) {
        std::string left = BytesOf(content.Descriptor);
        left.resize(left.size() / 2);
        if (content.Synced.size() > left.size())
            left += content.Synced.substr(left.size());
        const auto size = static_cast<ssize_t>(left.size());
        if (::ftruncate(content.Descriptor, size) != 0 ||
            ::pwrite(content.Descriptor, left.data(), left.size(), 0) != size)
            throw std::runtime_error("the test cannot lose a file's content");
        ::close(content.Descriptor);
    }
    m_contents.clear();
}

void Unsynced::KeepNames()
{
    m_names.clear();
}

void Unsynced::LoseNames()
{
    for (; !m_names.empty(); m_names.pop_back())
        m_names.back().TakeBack();
}

} // namespace orvane::testing
