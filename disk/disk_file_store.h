#pragma once

#include "core/file_store.h"
#include "disk/whole_files.h"

#include <string>

namespace orvane {

/// The files of the real disk. Paths become bytes in UTF-8. A path that is empty, has a NUL
/// character or half of a surrogate pair in it is BadFileName; names that are not UTF-8 are not
/// listed, and neither are the files that this creates for its own use.
///
/// How files are written, whole_files.h says; replacement_file.h and in_place_writer.h have the
/// names of those own files. What a killed program left of them is cleared up later: a recovery
/// copy when its file is read, copied or replaced, a temporary file when another program puts its
/// first file into the folder.
class DiskFileStore : public FileStore
{
public:
    /// `stateFolder` takes the recovery copies of files in whose folder nothing may be created. It
    /// belongs to the user alone, and is created when it is needed if its parent exists.
    DiskFileStore(SystemCalls& calls, TextView stateFolder);

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
    Done MakeFolder(TextView path, Access access) override;
    std::shared_ptr<const void> LockFolder(TextView folder) override;
    std::vector<Text> Files(TextView folder) const override;
    Outcome<std::vector<Text>> SubFolders(TextView folder) const override;
    bool FolderExists(TextView path) const override;

private:
    using Error = std::error_code;

    bool AreSame(const std::string& path, const std::string& other) const;
    Error Names(TextView folder, mode_t kind, std::vector<Text>& names) const;
    Fault FaultAt(const std::string& path, const Error& error) const;
    Done DoneAt(const std::string& path, const Error& error) const;
    Outcome<bool> UnlessCancelled(const std::string& path, const Error& error) const;

    SystemCalls& m_calls;
    WholeFiles m_files;
    bool m_waitsForLocks = true; ///< until it once did in vain
};

} // namespace orvane
