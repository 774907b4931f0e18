#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <unistd.h>

namespace orvane::testing {

namespace {

namespace fs = std::filesystem;

constexpr uid_t ordinaryUser = 65534;

void Require(bool done, const char* what)
{
    if (!done)
        throw std::runtime_error(std::string("the test cannot ") + what);
}

} // namespace

fs::path FastDisk()
{
    const fs::path memory = "/dev/shm";
    return fs::is_directory(memory) ? memory : fs::temp_directory_path();
}

TestFolder::TestFolder(const fs::path& parent)
{
    std::string name = (parent / "orvane-test-XXXXXX").string();
    Require(::mkdtemp(name.data()) != nullptr, "make its folder");
    m_path = name;
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    const auto open = [&](const fs::path& folder) {
        fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
    };
    open(m_path);
    for (const auto& entry : fs::recursive_directory_iterator(m_path, ignored))
        if (!entry.is_symlink(ignored) && entry.is_directory(ignored))
            open(entry.path());
    fs::remove_all(m_path, ignored);
}

std::string TestFolder::At(std::string_view name) const
{
    return (m_path / name).string();
}

void TestFolder::MakeFolder(std::string_view name, mode_t mode) const
{
    Require(::mkdir(At(name).c_str(), 0700) == 0, "make a folder");
    Require(::chmod(At(name).c_str(), mode) == 0, "set a folder's mode");
}

void TestFolder::Put(std::string_view name, std::string_view bytes, mode_t mode) const
{
    std::ofstream(At(name), std::ios::binary) << bytes;
    Require(::chmod(At(name).c_str(), mode) == 0, "write a file");
}

void TestFolder::Link(std::string_view target, std::string_view name) const
{
    fs::create_symlink(target, At(name));
}

void TestFolder::HardLink(std::string_view file, std::string_view name) const
{
    fs::create_hard_link(At(file), At(name));
}

std::optional<std::string> TestFolder::Get(std::string_view name) const
{
    std::ifstream file(At(name), std::ios::binary);
    if (!file)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::string> TestFolder::Names(std::string_view folder) const
{
    std::vector<std::string> names;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(At(folder), missing))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

FileStatus TestFolder::Status(std::string_view name) const
{
    FileStatus status{};
    EXPECT_EQ(::lstat(At(name).c_str(), &status), 0) << name;
    return status;
}

OrdinaryUser::OrdinaryUser() : m_wasRoot(::geteuid() == 0)
{
    if (m_wasRoot)
        Require(::setegid(ordinaryUser) == 0 && ::seteuid(ordinaryUser) == 0, "change its user");
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_wasRoot && (::seteuid(0) != 0 || ::setegid(0) != 0))
        std::abort();
}

} // namespace orvane::testing
