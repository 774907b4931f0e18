#pragma once

#include "core/text.h"
#include "disk/system_calls.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::testing {

/// A folder in memory, if there is one, else the folder for temporary files. For tests that need no
/// real disk, since a double simulates what a disk would write late.
std::filesystem::path FastDisk();

/// A new folder that is removed with the object. Names are relative to it. A function that cannot
/// do its work throws.
class TestFolder
{
public:
    /// Makes the folder in `parent`.
    explicit TestFolder(const std::filesystem::path& parent);
    TestFolder() : TestFolder(std::filesystem::temp_directory_path()) {}
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /// The full path of a name.
    std::string At(std::string_view name) const;
    Text TextAt(std::string_view name) const { return FromUtf8(At(name)); }

    void MakeFolder(std::string_view name, mode_t mode = 0755) const;
    /// Writes a file with these bytes and this mode.
    void Put(std::string_view name, std::string_view bytes, mode_t mode = 0644) const;
    /// Makes a symbolic link `name` to `target`.
    void Link(std::string_view target, std::string_view name) const;
    /// Makes `name` a second name of a file.
    void HardLink(std::string_view file, std::string_view name) const;

    /// The bytes of a file; nothing when it cannot be read.
    std::optional<std::string> Get(std::string_view name) const;

    /// The sorted names in a folder, hidden ones too; empty when it cannot be read.
    std::vector<std::string> Names(std::string_view folder) const;

    /// What lstat(2) gives; fails the test when that fails.
    FileStatus Status(std::string_view name) const;

private:
    std::filesystem::path m_path;
};

/// While it exists, a test that runs as the superuser has the rights of an ordinary user.
class OrdinaryUser
{
public:
    OrdinaryUser();
    ~OrdinaryUser();
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_wasRoot;
};

} // namespace orvane::testing
