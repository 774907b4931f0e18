#pragma once

#include "core/text.h"

namespace orvane {

/// The address, beside a page, of a file of that name: the characters that mean something else in
/// an address are written as "%20" and the like.
Text WithPercents(TextView fileName);

/// An address with the characters that "%20" and the like stand for, as UTF-8.
Text WithoutPercents(TextView address);

} // namespace orvane
