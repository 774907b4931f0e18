#include "preview/page_folder.h"

#include <algorithm>
#include <system_error>

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

PageFolder::PageFolder(TextView pagePath)
    : m_folder(Resolved(std::filesystem::path(ToUtf8(pagePath)).parent_path()))
{
}

bool PageFolder::Holds(TextView path) const
{
    const std::filesystem::path resolved = Resolved(ToUtf8(path));
    if (m_folder.empty() || resolved.empty())
        return false;
    const auto [rest, below] =
        std::mismatch(m_folder.begin(), m_folder.end(), resolved.begin(), resolved.end());
    return rest == m_folder.end() && below != resolved.end();
}

} // namespace orvane
