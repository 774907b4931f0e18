#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/text.h"

#include <optional>

namespace orvane {

/// How OK ended in the "Create Folder" window.
struct MakeDirEnd
{
    bool Closes = false;           ///< the window closes
    std::optional<Text> NewFolder; ///< where `dirCopyTo` goes; nothing: it stays where it is
    bool operator==(const MakeDirEnd&) const = default;
};

/// Creates the folder named by the text field below the folder that the window's folder box shows.
/// A failure is silent; a folder that exists already is taken as it is.
MakeDirEnd MakeDirEnter(TextView folder, TextView field, FileStore& files, Dialogs& dialogs);

} // namespace orvane
