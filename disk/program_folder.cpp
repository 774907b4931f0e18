#include "disk/program_folder.h"

#include "core/file_names.h"

namespace orvane {

UserFolders FindUserFolders(const Environment& environment)
{
    if (const auto home = environment(u"ORVANE_HOME"); home && !home->empty())
        return {*home, PathIn(*home, u"settings"), PathIn(*home, u"state")};
    const Text home = environment(u"HOME").value_or(u"/");
    // A relative path in one of these variables is to be ignored.
    const auto base = [&](TextView variable, TextView otherwise) {
        const Text path = environment(variable).value_or(Text());
        return PathIn(path.starts_with(u'/') ? path : PathIn(home, otherwise), u"orvane");
    };
    return {base(u"XDG_DATA_HOME", u".local/share"), base(u"XDG_CONFIG_HOME", u".config"),
            base(u"XDG_STATE_HOME", u".local/state")};
}

Done InstallFile(FileStore& files, TextView path, std::string_view bytes)
{
    const auto present = files.Read(path);
    if (!FaultIn(present) && ValueIn(present) == bytes)
        return {};
    return files.Replace(path, bytes);
}

} // namespace orvane
