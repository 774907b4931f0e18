#pragma once

#include "core/workbench.h"

#include <functional>
#include <vector>

class QMenu;

namespace orvane {

/// Gives the full paths that a menu offers.
using PathLister = std::function<std::vector<Text>()>;

/// Fills a menu, each time it opens, with these paths; without any it shows "(None)". `take` gets
/// the path that the author chose.
void OfferPaths(QMenu& menu, PathLister list, std::function<void(const Text& path)> take);

/// OfferPaths() with the recent files of a kind, newest first. The bench and the text of `kind`
/// must outlive the menu.
void OfferRecentFiles(QMenu& menu, TextView kind, const Workbench& bench,
                      std::function<void(const Text& path)> take);

} // namespace orvane
