#pragma once

#include <QImage>

#include <set>
#include <string>
#include <vector>

namespace orvane::testing {

/// What happened while a browser showed a page from the disk.
struct Visit
{
    bool IsLoaded = false;
    std::set<std::string> MissingFiles; ///< names of files that the page loads but that are missing
    std::vector<std::string> Errors;    ///< error messages of scripts
    QImage Picture;                     ///< the page at the end
};

/// Shows a page file for a moment in a browser that loads local files only; fails the test when the
/// page does not load.
Visit VisitPage(const QString& path);

/// The names in a page's text that look like files of its own folder, judged by their endings; a
/// name is listed as often as it occurs.
std::vector<std::string> FilesNamedIn(const std::string& page);

} // namespace orvane::testing
