#include "insertion/page_backups.h"

#include "core/numbers.h"
#include "disk/program_folder.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

namespace orvane {

namespace {

constexpr TextView sameWords = u"Your Web page is the same as this backup already.";

constexpr TextView changedWords =
    u"Another application has changed your Web page file in the meantime.  The file stays as that "
    u"application saved it."
    u"\r\n\r\n"
    u"Please try to bring back the backup again.";

bool Tell(Dialogs& dialogs, TextView words)
{
    dialogs.Say(words);
    return false;
}

Text CountBytes(std::uint64_t count)
{
    return Join({FromUtf8(std::to_string(count)), count == 1 ? u" byte" : u" bytes"});
}

Done MakeFoldersFor(FileStore& files, TextView path)
{
    const TextView folder = FolderOf(path);
    return MakeFolders(files, Left(folder, folder.size() - 1), Access::OwnerAlone);
}

} // namespace

Text BackupPath(TextView page)
{
    return Join({FolderOf(page), u"Backup of ", GetFileName(page)});
}

Done BackUp(FileStore& files, TextView backup, TextView page, std::string_view bytes)
{
    const Done done = files.PutNew(backup, bytes, page);
    if (FaultIn(done))
        return done;
    // A page that is a link to its own backup has none.
    const auto isKept = files.IsCopyOf(backup, page, bytes);
    if (const Fault* fault = FaultIn(isKept))
        return *fault;
    if (!ValueIn(isKept))
        return Fault::PathFileAccess;
    return {};
}

void KeepFirstBackup(FileStore& files, const KeptPagesPlace& kept, TextView page,
                     std::string_view bytes)
{
    const Text path = KeptPagePath(kept, page);
    if (files.IsTaken(path))
        return;
    if (!FaultIn(MakeFoldersFor(files, path)))
        std::ignore = files.PutNew(path, bytes, page);
}

Done KeepPage(FileStore& files, const KeptPagesPlace& kept, TextView page, std::string_view bytes)
{
    Done made = MakeFolders(files, kept.Folder, Access::OwnerAlone);
    if (FaultIn(made))
        return made;
    // A folder that is new holds nothing that could be written over.
    KeptPagesPlace place = kept;
    int number = 2;
    do {
        place.Day = Join({kept.Day, u" ", NumberToText(number)});
        made = files.MakeFolder(PathIn(kept.Folder, place.Day), Access::OwnerAlone);
    } while (made == Done(Fault::PathFileAccess) && ++number < 10000);
    if (FaultIn(made))
        return made;
    const Text path = KeptPagePath(place, page);
    made = MakeFoldersFor(files, path);
    return FaultIn(made) ? made : BackUp(files, path, page, bytes);
}

Text KeptPagePath(const KeptPagesPlace& kept, TextView page)
{
    // Without this, ".." in a page's path would lead out of the folder.
    const auto plain = std::filesystem::path(ToUtf8(page)).lexically_normal();
    return PathIn(kept.Folder, kept.Day) + FromUtf8(plain.string());
}

std::vector<PageBackup> BackupsOf(const FileStore& files, const KeptPagesPlace& kept, TextView page)
{
    std::vector<Text> paths = {BackupPath(page)};
    const auto days = files.SubFolders(kept.Folder);
    if (!FaultIn(days))
        for (const Text& day : ValueIn(days))
            paths.push_back(KeptPagePath({kept.Folder, day}, page));
    std::vector<PageBackup> backups;
    for (Text& path : paths)
        if (const auto facts = files.Facts(path); facts && !facts->IsLink)
            backups.push_back({std::move(path), *facts});
    std::stable_sort(backups.begin(), backups.end(), [](const auto& one, const auto& other) {
        return one.Facts.Written > other.Facts.Written;
    });
    return backups;
}

Text CompareSizes(std::uint64_t backup, std::uint64_t page)
{
    if (backup == page)
        return u"same size";
    return backup > page ? CountBytes(backup - page) + u" more"
                         : CountBytes(page - backup) + u" less";
}

bool BringBack(FileStore& files, Dialogs& dialogs, TextView page, TextView backup,
               const KeptPagesPlace& kept)
{
    const auto earlier = files.Read(backup);
    if (const Fault* fault = FaultIn(earlier))
        return Tell(dialogs, Words(*fault));
    const auto now = files.Read(page);
    if (const Fault* fault = FaultIn(now))
        return Tell(dialogs, Words(*fault));
    if (ValueIn(now) == ValueIn(earlier))
        return Tell(dialogs, sameWords);
    const Done isKept = KeepPage(files, kept, page, ValueIn(now));
    if (const Fault* fault = FaultIn(isKept))
        return Tell(dialogs, Words(*fault));
    const auto written = files.Exchange(page, ValueIn(now), ValueIn(earlier));
    if (const Fault* fault = FaultIn(written))
        return Tell(dialogs, Words(*fault));
    return ValueIn(written) || Tell(dialogs, changedWords);
}

} // namespace orvane
