#pragma once

#include "core/text.h"

namespace orvane {

/// What an effect may know of the world beside what the author entered.
struct Surroundings
{
    double Clock = 0;   ///< local time in days since the year 1900 began, as spreadsheets count it
    Text ProgramFolder; ///< its full path
};

} // namespace orvane
