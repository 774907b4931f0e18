#pragma once

#include "core/file_store.h"
#include "disk/system_calls.h"

#include <functional>
#include <optional>
#include <string_view>

namespace orvane {

/// Looks up an environment variable; nothing when it is not set.
using Environment = std::function<std::optional<Text>(TextView name)>;

/// The folders of this program for one user, without separators at their ends.
struct UserFolders
{
    Text Program;  ///< applet classes, effect images, help, the preview page
    Text Settings; ///< one file per application
    Text State;    ///< backups, drafts, recovery copies
};

/// The folders where the conventions of the desktop (the XDG variables and HOME) put them.
/// ORVANE_HOME, if set, is the program folder instead and has the other two inside; a relative one
/// starts at the current folder. Nothing when the variables give no place for one of the folders.
std::optional<UserFolders> FindUserFolders(const Environment& environment);

/// Shuts all others out of the folders that exist already; a failure is passed over.
void ShutOthersOut(SystemCalls& calls, const UserFolders& folders);

/// Makes the file hold these bytes; a file that holds them already is not written.
[[nodiscard]] Done InstallFile(FileStore& files, TextView path, std::string_view bytes);

} // namespace orvane
