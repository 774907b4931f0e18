#pragma once

#include "core/text.h"

namespace orvane {

/// The embedded browser of the delivery wizard's first page.
class PreviewPane
{
public:
    virtual ~PreviewPane() = default;

    /// Shows the page file and deletes it once the page has been read.
    virtual void Navigate(TextView path) = 0;

    /// Leaves the page: it falls silent, and its windows close.
    virtual void Clear() = 0;
};

} // namespace orvane
