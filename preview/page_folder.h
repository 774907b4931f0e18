#pragma once

#include "core/text.h"

#include <filesystem>

namespace orvane {

/// The folder from which, with its sub-folders, a previewed page may read files.
class PageFolder
{
public:
    /// No folder: nothing lies in it.
    PageFolder() = default;

    /// The folder of the page file, with its links resolved.
    explicit PageFolder(TextView pagePath);

    /// Whether the file exists and, with all links resolved, lies below the folder.
    bool Holds(TextView path) const;

private:
    std::filesystem::path m_folder;
};

} // namespace orvane
