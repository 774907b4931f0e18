#include "services/drafts.h"

#include "core/file_names.h"

#include <tuple>

namespace orvane {

namespace {

Text FileOf(ControlName effect, TextView folder)
{
    return PathIn(folder, Join({FromUtf8(effect), u".txt"}));
}

} // namespace

Text DraftPathOf(TextView stateFolder, ControlName effect)
{
    return FileOf(effect, PathIn(stateFolder, u"drafts"));
}

Text LastTimePathOf(TextView stateFolder, ControlName effect)
{
    return FileOf(effect, PathIn(stateFolder, u"last-time"));
}

std::optional<Text> ReadDraftFile(const FileStore& files, TextView path)
{
    if (!files.FileExists(path))
        return std::nullopt;
    const auto bytes = files.Read(path);
    if (FaultIn(bytes) != nullptr)
        return std::nullopt;
    return FromUtf8(ValueIn(bytes));
}

void WriteDraftFile(FileStore& files, TextView path, TextView draft)
{
    const TextView folder = FolderOf(path);
    std::ignore = MakeFolders(files, folder.substr(0, folder.size() - 1), Access::OwnerAlone);
    std::ignore = files.PutPrivate(path, ToUtf8(draft));
}

void DropDraftFile(FileStore& files, TextView path)
{
    if (files.FileExists(path))
        std::ignore = files.Remove(path);
}

} // namespace orvane
