#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/text.h"

#include <optional>

namespace orvane {

/// What a press of OK in the "Create Folder" window leads to.
struct MakeDirEnd
{
    bool Closes = false;           ///< the window closes
    std::optional<Text> NewFolder; ///< what `dirCopyTo` shows then; nothing: the same as before
    bool operator==(const MakeDirEnd&) const = default;
};

/// Creates a folder in `folder`, with the text of the field, trimmed, as its name. The author is
/// told to enter a name when the field is empty, and the window stays open; a field of blanks
/// closes it. A folder that exists already counts as created. When it cannot be created the author
/// is not told.
MakeDirEnd MakeDirEnter(TextView folder, TextView field, FileStore& files, Dialogs& dialogs);

} // namespace orvane
