#pragma once

#include <QImage>

#include <set>
#include <string>
#include <vector>

namespace orvane::testing {

/// What a browser met while it showed a page from the disk.
struct Visit
{
    bool IsLoaded = false;
    std::set<std::string> MissingFiles; ///< names of those asked for that are not on the disk
    std::vector<std::string> Errors;    ///< of scripts
    QImage Picture;
};

/// Shows a page file for a moment in a browser that asks nobody else for anything.
Visit VisitPage(const QString& path);

/// The names in a page that are files of the page's own folder, by how they end.
std::vector<std::string> FilesNamedIn(const std::string& page);

} // namespace orvane::testing
