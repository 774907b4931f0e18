#pragma once

#include "core/text.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace orvane {

/// The folder of a previewed page, and which of its files the page may read. More lies there than
/// belongs to the page: the settings, drafts and passwords of the author, for one.
class PageFolder
{
public:
    /// No folder: nothing lies in it.
    PageFolder() = default;

    /// The folder of the page file, with its links resolved. The page may read itself and the files
    /// with these names.
    PageFolder(TextView pagePath, std::vector<Text> files);

    /// Whether the file exists and, with all links resolved, is one that the page may read.
    bool Holds(TextView path) const;

private:
    std::filesystem::path m_folder;
    std::vector<Text> m_files;
};

/// The full path, with all links resolved, of the file with that name in the folder or below it.
/// Nothing for one that is not there or lies elsewhere, for hidden ones, and for scripts of a Web
/// server, which may hold passwords.
std::optional<Text> FileBelow(TextView folder, TextView name);

} // namespace orvane
