#include "disk/program_folder.h"

#include "core/file_names.h"
#include "disk/file_handle.h"

#include <filesystem>
#include <tuple>

namespace orvane {

namespace {

/// The path from the root on, without a separator at its end; empty when the current folder is
/// gone.
Text FromTheRootOn(TextView path)
{
    std::error_code error;
    const auto full = std::filesystem::absolute(std::filesystem::path(path), error);
    const Text text = error ? Text() : FromUtf8(full.lexically_normal().string());
    return Text(text.ends_with(pathSeparator) ? Left(text, text.size() - 1) : TextView(text));
}

} // namespace

std::optional<UserFolders> FindUserFolders(const Environment& environment)
{
    if (const auto home = environment(u"ORVANE_HOME"); home && !home->empty()) {
        const Text folder = FromTheRootOn(*home);
        if (folder.empty())
            return std::nullopt;
        return UserFolders{folder, PathIn(folder, u"settings"), PathIn(folder, u"state")};
    }
    // A relative path in one of these variables is to be ignored.
    const auto place = [&](TextView variable) {
        const Text path = environment(variable).value_or(Text());
        return path.starts_with(pathSeparator) ? path : Text();
    };
    const Text home = place(u"HOME");
    const auto base = [&](TextView variable, TextView otherwise) {
        const Text path = place(variable);
        if (path.empty() && home.empty())
            return Text();
        return PathIn(path.empty() ? PathIn(home, otherwise) : path, u"orvane");
    };
    UserFolders folders{base(u"XDG_DATA_HOME", u".local/share"),
                        base(u"XDG_CONFIG_HOME", u".config"),
                        base(u"XDG_STATE_HOME", u".local/state")};
    if (folders.Program.empty() || folders.Settings.empty() || folders.State.empty())
        return std::nullopt;
    return folders;
}

void ShutOthersOut(SystemCalls& calls, const UserFolders& folders)
{
    for (const Text& path : {folders.Program, folders.Settings, folders.State}) {
        FileHandle folder(calls);
        if (!folder.OpenFolder(ToUtf8(path)))
            std::ignore = folder.TakeFromOthers();
    }
}

Done InstallFile(FileStore& files, TextView path, std::string_view bytes)
{
    const auto present = files.Read(path);
    if (!FaultIn(present) && ValueIn(present) == bytes)
        return {};
    return files.Replace(path, bytes);
}

} // namespace orvane
