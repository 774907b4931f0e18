#pragma once

#include "core/file_store.h"
#include "disk/in_place_writer.h"

#include <string>

namespace orvane {

/// The files of a real disk. Paths are its bytes in UTF-8; a path that is empty, holds a zero or
/// half of a surrogate pair is BadFileName, and names that are no UTF-8 are not listed.
///
/// Replace() and Copy() write a new file beside the old one and rename it over it; a symbolic link
/// is followed first. Where that would lose something or is not allowed, the file is written in
/// place, guarded by a recovery copy: one with several hard links or an access list, one whose
/// owner this user may not set, one in a folder that this user may not write. new_file.h and
/// in_place_writer.h have the names of the files that this leaves while it runs. What a killed
/// program left is cleared up by the next Read(), Replace() or Copy() that touches the file.
class DiskFileStore : public FileStore
{
public:
    /// `stateFolder` takes the recovery copies of files whose folder may not be written. It is the
    /// user's own, and created in its parent when it is needed.
    DiskFileStore(Disk& disk, TextView stateFolder);

    bool FileExists(TextView path) const override;
    Outcome<std::string> Read(TextView path) const override;
    Done Replace(TextView path, std::string_view bytes) override;
    Done Copy(TextView from, TextView to) override;
    Done Remove(TextView path) override;
    Done MakeFolder(TextView path) override;
    std::vector<Text> Files(TextView folder) const override;
    Outcome<std::vector<Text>> SubFolders(TextView folder) const override;
    bool FolderExists(TextView path) const override;

private:
    using Error = std::error_code;

    Error FollowLinks(std::string& path) const;
    Error ReadFile(std::string path, std::string& bytes) const;
    Error ReplaceFile(std::string path, std::string_view bytes);
    Error PutNew(const std::string& path, std::string_view bytes);
    Error Names(TextView folder, mode_t kind, std::vector<Text>& names) const;
    Fault FaultAt(const std::string& path, const Error& error) const;
    Done DoneAt(const std::string& path, const Error& error) const;

    Disk& m_disk;
    InPlaceWriter m_inPlace;
};

} // namespace orvane
