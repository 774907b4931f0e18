#pragma once

#include "core/file_store.h"
#include "disk/whole_files.h"

#include <string>

namespace orvane {

/// The files of a real calls. Paths are its bytes in UTF-8; a path that is empty, holds a zero or
/// half of a surrogate pair is BadFileName, and names that are no UTF-8 are not listed.
///
/// How files are written, whole_files.h says; replacement_file.h and in_place_writer.h have the
/// names of the files that this leaves while it runs. What a killed program left is cleared up by
/// the next Read(), Replace() or Exchange() of the file.
class DiskFileStore : public FileStore
{
public:
    /// `stateFolder` takes the recovery copies of files whose folder may not be written. It is the
    /// user's own, and created in its parent when it is needed.
    DiskFileStore(SystemCalls& calls, TextView stateFolder);

    bool FileExists(TextView path) const override;
    bool IsTaken(TextView path) const override;
    Outcome<bool> IsCopyOf(TextView path, TextView other, std::string_view bytes) const override;
    std::optional<FileFacts> Facts(TextView path) const override;
    Outcome<std::string> Read(TextView path) const override;
    Done Replace(TextView path, std::string_view bytes) override;
    Outcome<bool> Exchange(TextView path, std::string_view old, std::string_view bytes) override;
    Done PutNew(TextView path, std::string_view bytes, TextView like) override;
    Done Copy(TextView from, TextView to, Progress* progress) override;
    Done Remove(TextView path) override;
    Done MakeFolder(TextView path, Access access) override;
    std::shared_ptr<const void> Hold(TextView folder) override;
    std::vector<Text> Files(TextView folder) const override;
    Outcome<std::vector<Text>> SubFolders(TextView folder) const override;
    bool FolderExists(TextView path) const override;

private:
    using Error = std::error_code;

    bool AreSame(const std::string& path, const std::string& other) const;
    Error Names(TextView folder, mode_t kind, std::vector<Text>& names) const;
    Fault FaultAt(const std::string& path, const Error& error) const;
    Done DoneAt(const std::string& path, const Error& error) const;

    SystemCalls& m_calls;
    WholeFiles m_files;
};

} // namespace orvane
