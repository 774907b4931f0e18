#pragma once

#include "core/file_store.h"

#include <functional>
#include <optional>

namespace orvane {

/// Looks up an environment variable; nothing when it is not set.
using Environment = std::function<std::optional<Text>(TextView name)>;

/// The per-user folders of this program, without separators at their ends.
struct UserFolders
{
    Text Program;  ///< applet classes, effect images, help, the preview page
    Text Settings; ///< one file per application
    Text State;    ///< untouched first backups
};

/// The folders as the desktop's conventions place them; ORVANE_HOME, from the current folder on
/// when it is relative, names another program folder and takes settings and state along. Nothing
/// when the variables tell no place for one of them.
std::optional<UserFolders> FindUserFolders(const Environment& environment);

/// Makes the file hold these bytes unless it does already.
[[nodiscard]] Done InstallFile(FileStore& files, TextView path, std::string_view bytes);

} // namespace orvane
