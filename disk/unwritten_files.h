#pragma once

#include "core/file_store.h"

#include <map>
#include <optional>
#include <string>

namespace orvane {

/// Files as they would be: reads go to another store, and what is written, copied or removed is
/// kept in memory and read from there. No file changes.
class UnwrittenFiles : public FileStore
{
public:
    /// `files` must outlive the object.
    explicit UnwrittenFiles(const FileStore& files) : m_files(files) {}

    /// What would have been written, by full path; nothing where the file would be gone.
    using Changes = std::map<Text, std::optional<std::string>>;
    const Changes& Unwritten() const { return m_changes; }

    bool FileExists(TextView path) const override;
    bool IsTaken(TextView path) const override;
    Outcome<bool> IsCopyOf(TextView path, TextView other, std::string_view bytes) const override;
    std::optional<FileFacts> Facts(TextView path) const override;
    Outcome<std::string> Read(TextView path) const override;
    Outcome<std::string> ReadItself(TextView path) const override;
    Done Replace(TextView path, std::string_view bytes) override;
    Outcome<bool> Exchange(TextView path, std::string_view old, std::string_view bytes,
                           std::string_view rest = {}) override;
    Done PutNew(TextView path, std::string_view bytes, TextView like) override;
    Done PutPrivate(TextView path, std::string_view bytes) override;
    Outcome<bool> PutIfFree(TextView path, std::string_view bytes, TextView like) override;
    Done Copy(TextView from, TextView to, Progress* progress) override;
    Done Remove(TextView path) override;
    Done MakeFolder(TextView, Access) override { return {}; }
    std::shared_ptr<const void> LockFolder(TextView) override { return nullptr; }
    std::vector<Text> Files(TextView folder) const override { return m_files.Files(folder); }
    Outcome<std::vector<Text>> SubFolders(TextView folder) const override
    {
        return m_files.SubFolders(folder);
    }
    bool FolderExists(TextView path) const override { return m_files.FolderExists(path); }

private:
    /// The change of that file, or null.
    const std::optional<std::string>* ChangeOf(TextView path) const;

    const FileStore& m_files;
    Changes m_changes;
};

} // namespace orvane
