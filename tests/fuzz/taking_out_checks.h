#pragma once

#include <string>

namespace orvane::testing {

/// Throws std::logic_error unless what is found in the page lies in it, taking an effect out
/// changes nothing else, and taking out undoes an insertion and a second one wherever they write.
/// Expects a page without declared character set.
void CheckTakingOut(const std::string& page);

/// Throws std::logic_error unless exactly the comments that a browser sees are taken for markers.
/// Expects a page without elements other than SCRIPT whose text is no markup.
void CheckSight(const std::string& page);

/// Checks every page of at most so many of fourteen tokens in both ways; gives their number.
int CheckAllPages(int tokens);

} // namespace orvane::testing
