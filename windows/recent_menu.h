#pragma once

#include "core/workbench.h"

#include <functional>

class QMenu;

namespace orvane {

/// Fills a menu, whenever it opens, with the recent files of a kind, newest first; `take` gets the
/// path of the one that the author chose.
void OfferRecentFiles(QMenu& menu, TextView kind, const Workbench& bench,
                      std::function<void(const Text& path)> take);

} // namespace orvane
