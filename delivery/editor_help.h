#pragma once

#include "core/text.h"

namespace orvane {

/// What `lblNeedHelp` offers on the three pages that show code to be copied by hand.
struct EditorHelp
{
    int Topic = 0; ///< the help topic that a click opens
    Text Caption;
    bool operator==(const EditorHelp&) const = default;
};

/// The help for the author's page editor; the topic is `pageTopic` for an editor without one of its
/// own. `scriptedHelp` chooses the topic for effects whose script needs more explanation.
EditorHelp setWebPageEditor(TextView editor, bool scriptedHelp, int pageTopic);

} // namespace orvane
