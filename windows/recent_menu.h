#pragma once

#include "core/workbench.h"

#include <functional>

class QMenu;

namespace orvane {

/// Fills a menu, each time it opens, with the recent files of a kind, newest first; without any it
/// shows "(None)". `take` gets the path that the author chose. The bench and the text of `kind`
/// must outlive the menu.
void OfferRecentFiles(QMenu& menu, TextView kind, const Workbench& bench,
                      std::function<void(const Text& path)> take);

} // namespace orvane
