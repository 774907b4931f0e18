#pragma once

#include "core/text.h"
#include "disk/system_calls.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::testing {

/// A file system in memory, if there is one, else the folder for temporary files: for tests that
/// play by a double what a disk would do late.
std::filesystem::path FastDisk();

/// A folder on the real disk that is gone with the object. Names are relative to it.
class TestFolder
{
public:
    explicit TestFolder(const std::filesystem::path& parent);
    TestFolder() : TestFolder(std::filesystem::temp_directory_path()) {}
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    std::string At(std::string_view name) const;
    Text TextAt(std::string_view name) const { return FromUtf8(At(name)); }

    void MakeFolder(std::string_view name, mode_t mode = 0755) const;
    void Put(std::string_view name, std::string_view bytes, mode_t mode = 0644) const;
    void Link(std::string_view target, std::string_view name) const;
    void HardLink(std::string_view file, std::string_view name) const;

    /// The bytes of a file as they lie on the disk; nothing when it is missing.
    std::optional<std::string> Get(std::string_view name) const;

    /// The sorted names in a folder, hidden ones too; empty when it is missing.
    std::vector<std::string> Names(std::string_view folder) const;

    /// What lstat(2) says; fails the test when it fails.
    FileStatus Status(std::string_view name) const;

private:
    std::filesystem::path m_path;
};

/// While it lives, a test that runs as the superuser has the rights of an ordinary user.
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
