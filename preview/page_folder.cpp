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

std::optional<Text> FileBelow(TextView folder, TextView name)
{
    const std::filesystem::path root = Resolved(ToUtf8(folder));
    const std::filesystem::path file = Resolved(root / ToUtf8(name));
    std::error_code error;
    if (folder.empty() || root.empty() || !std::filesystem::is_regular_file(file, error))
        return std::nullopt;
    const std::filesystem::path way = file.lexically_relative(root);
    const bool isHidden = std::ranges::any_of(
        way, [](const std::filesystem::path& part) { return part.string().starts_with('.'); });
    Text path = FromUtf8(file.string());
    if (way.empty() || isHidden || EndsWithIgnoringCase(path, u".cgi"))
        return std::nullopt;
    return path;
}

} // namespace orvane
