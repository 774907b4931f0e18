#include "insertion/page_backups.h"

#include "core/numbers.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

namespace orvane {

namespace {

constexpr TextView sameWords = u"Your Web page is the same as this backup already.";

constexpr TextView linkWords =
    u"A link has taken the place of this backup.  Orvane does not follow "
    u"it.";

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

Done MakeFoldersFor(FileStore& files, TextView path, Access access)
{
    const TextView folder = FolderOf(path);
    return MakeFolders(files, Left(folder, folder.size() - 1), access);
}

/// The result of writing a backup, which must be a file other than the page, with these bytes.
Done Checked(const FileStore& files, const Done& written, TextView backup, TextView page,
             std::string_view bytes)
{
    if (FaultIn(written))
        return written;
    // A page that is a link to its own backup has none.
    const auto isKept = files.IsCopyOf(backup, page, bytes);
    if (const Fault* fault = FaultIn(isKept))
        return *fault;
    if (!ValueIn(isKept))
        return Fault::PathFileAccess;
    return {};
}

bool IsGone(const Outcome<std::string>& page)
{
    const Fault* fault = FaultIn(page);
    return fault && (*fault == Fault::FileNotFound || *fault == Fault::PathNotFound);
}

/// Puts a page that is gone where it was. What another program puts there meanwhile stays.
Outcome<bool> PutGonePage(FileStore& files, TextView page, TextView backup, std::string_view bytes)
{
    const Done made = MakeFoldersFor(files, page, Access::AsUsual);
    if (const Fault* fault = FaultIn(made))
        return *fault;
    // A backup in that place is its owner's alone; the backup beside the page has the rights of the
    // page.
    const Text beside = BackupPath(page);
    return files.PutIfFree(page, bytes, files.FileExists(beside) ? TextView(beside) : backup);
}

} // namespace

Text BackupPath(TextView page)
{
    return Join({FolderOf(page), u"Backup of ", GetFileName(page)});
}

Done BackUp(FileStore& files, TextView backup, TextView page, std::string_view bytes)
{
    return Checked(files, files.PutNew(backup, bytes, page), backup, page, bytes);
}

void KeepFirstBackup(FileStore& files, const BackupsPlace& place, TextView page,
                     std::string_view bytes)
{
    const Text path = BackupPathIn(place, page);
    if (files.IsTaken(path))
        return;
    if (!FaultIn(MakeFoldersFor(files, path, Access::OwnerAlone)))
        std::ignore = files.PutPrivate(path, bytes);
}

Done KeepBackup(FileStore& files, const BackupsPlace& place, TextView page, std::string_view bytes)
{
    Done made = MakeFolders(files, place.Folder, Access::OwnerAlone);
    if (FaultIn(made))
        return made;
    // A folder that is new holds nothing that could be written over.
    BackupsPlace ofItsOwn = place;
    int number = 2;
    do {
        ofItsOwn.Day = Join({place.Day, u" ", NumberToText(number)});
        made = files.MakeFolder(PathIn(place.Folder, ofItsOwn.Day), Access::OwnerAlone);
    } while (made == Done(Fault::PathFileAccess) && ++number < 10000);
    if (FaultIn(made))
        return made;
    const Text path = BackupPathIn(ofItsOwn, page);
    made = MakeFoldersFor(files, path, Access::OwnerAlone);
    return FaultIn(made) ? made : Checked(files, files.PutPrivate(path, bytes), path, page, bytes);
}

Text BackupPathIn(const BackupsPlace& place, TextView page)
{
    // Without this, ".." in a page's path would lead out of the folder.
    const auto plain = std::filesystem::path(ToUtf8(page)).lexically_normal();
    return PathIn(place.Folder, place.Day) + FromUtf8(plain.string());
}

std::vector<PageBackup> BackupsOf(const FileStore& files, const BackupsPlace& place, TextView page)
{
    std::vector<Text> paths = {BackupPath(page)};
    const auto days = files.SubFolders(place.Folder);
    if (!FaultIn(days))
        for (const Text& day : ValueIn(days))
            paths.push_back(BackupPathIn({place.Folder, day}, page));
    std::vector<PageBackup> backups;
    for (Text& path : paths)
        if (const auto facts = files.Facts(path); facts && !facts->IsLink)
            backups.push_back({std::move(path), *facts});
    std::stable_sort(backups.begin(), backups.end(), [](const auto& one, const auto& other) {
        return one.Facts.Written > other.Facts.Written;
    });
    return backups;
}

Text PageOfBackup(const FileStore& files, const BackupsPlace& place, TextView path)
{
    constexpr TextView beside = u"Backup of ";
    const Text folder = WithSeparator(place.Folder);
    Text page;
    if (path.starts_with(folder)) {
        const std::size_t behindDay = path.find(pathSeparator, folder.size());
        page = behindDay == TextView::npos ? TextView() : path.substr(behindDay);
    } else if (const TextView name = GetFileName(path); name.starts_with(beside)) {
        page = Join({FolderOf(path), name.substr(beside.size())});
    }
    return page.empty() || files.FileExists(page) ? Text(path) : page;
}

Text CompareSizes(std::uint64_t backup, std::uint64_t page)
{
    if (backup == page)
        return u"same size";
    return backup > page ? CountBytes(backup - page) + u" more"
                         : CountBytes(page - backup) + u" less";
}

bool BringBack(FileStore& files, Dialogs& dialogs, TextView page, TextView backup,
               const BackupsPlace& place)
{
    const auto earlier = files.ReadItself(backup);
    if (const Fault* fault = FaultIn(earlier))
        return Tell(dialogs, *fault == Fault::BadFileName ? linkWords : Words(*fault));
    const auto now = files.Read(page);
    const bool isGone = IsGone(now);
    if (const Fault* fault = FaultIn(now); fault && !isGone)
        return Tell(dialogs, Words(*fault));
    if (now == earlier)
        return Tell(dialogs, sameWords);
    const Done isKept = isGone ? Done() : KeepBackup(files, place, page, ValueIn(now));
    if (const Fault* fault = FaultIn(isKept))
        return Tell(dialogs, Words(*fault));
    const auto written = isGone ? PutGonePage(files, page, backup, ValueIn(earlier))
                                : files.Exchange(page, ValueIn(now), ValueIn(earlier));
    if (const Fault* fault = FaultIn(written))
        return Tell(dialogs, Words(*fault));
    return ValueIn(written) || Tell(dialogs, changedWords);
}

} // namespace orvane
