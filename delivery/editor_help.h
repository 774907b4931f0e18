#pragma once

#include "core/text.h"

namespace orvane {

/// What `lblNeedHelp` offers on the pages of the manual way.
struct EditorHelp
{
    int Topic = 0; ///< the help topic that a click opens
    Text Caption;
    bool operator==(const EditorHelp&) const = default;
};

/// The help for the author's page editor; an editor without a topic of its own gets the page's.
EditorHelp setWebPageEditor(TextView editor, bool scriptedHelp, int pageTopic);

} // namespace orvane
