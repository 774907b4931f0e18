#pragma once

#include "core/text.h"

namespace orvane {

/// The address with "http://" in front if it begins with "www." in upper or lower case, else
/// unchanged.
Text WithScheme(TextView address);

} // namespace orvane
