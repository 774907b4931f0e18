#pragma once

#include "core/complaint.h"
#include "core/file_store.h"
#include "disk/program_folder.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// What the program's exit code says.
enum class CliExit
{
    Success = 0,
    Failed = 1, ///< a page or a recipe failed, or nothing was found to work on
    WrongUse = 2,
};

/// Everything that the command line program meets outside of itself. Words are
/// UTF-8.
struct CliWorld
{
    FileStore& Files;
    UserFolders Folders;
    Text CurrentFolder;                          ///< its full path
    Text Version;                                ///< of this program
    Text Today;                                  ///< the date, such as "2024-05-31"
    double Clock = 0;                            ///< as in Surroundings
    std::function<void(std::string_view)> Out;   ///< what was asked for
    std::function<void(std::string_view)> Error; ///< messages
    Environment Variable;
    /// Asks for yes or no; empty when nobody can be asked.
    std::function<bool(std::string_view words)> Ask;
    /// Asks for a secret without showing it; empty when nobody can be asked.
    std::function<Text(std::string_view words)> AskSecret;
    bool ShowsProgress = false;
    /// The bytes of a file that travels inside the program, such as an applet's
    /// class; nothing for any other name.
    std::function<std::optional<std::string_view>(TextView name)> OwnFile;
    /// What the effect window of this name calls a field; empty for a field without words.
    std::function<TextView(ControlName form, ControlName field)> FieldLabel;
};

} // namespace orvane
