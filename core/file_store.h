#pragma once

#include "core/fault.h"
#include "core/text.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// The one door to the disk. Paths are texts; contents are bytes as they lie in the file.
class FileStore
{
public:
    virtual ~FileStore() = default;

    /// True when the path can be opened for reading and is no folder.
    virtual bool FileExists(TextView path) const = 0;

    /// The whole content of a file. A missing file is FileNotFound, a missing folder PathNotFound.
    virtual Outcome<std::string> Read(TextView path) const = 0;

    /// Makes the file hold these bytes: at every moment, and after any failure, it holds the old
    /// bytes or the new ones. Links are followed, permissions kept.
    [[nodiscard]] virtual Done Replace(TextView path, std::string_view bytes) = 0;

    /// Gives `to` the content of `from`, as Replace() would.
    [[nodiscard]] virtual Done Copy(TextView from, TextView to) = 0;

    /// Removes a file; a missing one is FileNotFound.
    [[nodiscard]] virtual Done Remove(TextView path) = 0;

    /// Creates one folder whose parent exists.
    [[nodiscard]] virtual Done MakeFolder(TextView path) = 0;

    /// The names of the files in a folder, links to files included, sorted ignoring case; empty
    /// when it cannot be read.
    virtual std::vector<Text> Files(TextView folder) const = 0;

    /// The names of the folders in a folder, links to folders included, sorted ignoring case; the
    /// fault when it cannot be read.
    virtual Outcome<std::vector<Text>> SubFolders(TextView folder) const = 0;

    /// True when the path is a folder.
    virtual bool FolderExists(TextView path) const = 0;
};

/// Makes a folder and those above it that are missing.
[[nodiscard]] Done MakeFolders(FileStore& files, TextView path);

} // namespace orvane
