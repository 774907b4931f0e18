#include "preview/page_folder.h"

#include "core/file_names.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace orvane {

namespace {

/// The path without links; empty when it does not exist.
std::filesystem::path Resolved(const std::filesystem::path& path)
{
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(path, error);
    return error ? std::filesystem::path() : resolved;
}

} // namespace

PageFolder::PageFolder(TextView pagePath, std::vector<Text> files)
    : m_folder(Resolved(std::filesystem::path(ToUtf8(pagePath)).parent_path())),
      m_files(std::move(files))
{
    m_files.emplace_back(GetFileName(pagePath));
}

bool PageFolder::Holds(TextView path) const
{
    const std::filesystem::path resolved = Resolved(ToUtf8(path));
    return !m_folder.empty() && resolved.parent_path() == m_folder &&
           std::ranges::find(m_files, FromUtf8(resolved.filename().string())) != m_files.end();
}

} // namespace orvane
