#pragma once

#include "core/text.h"

namespace orvane {

/// The address with "http://" in front when its first four characters are "www." in any case.
Text WithScheme(TextView address);

} // namespace orvane
