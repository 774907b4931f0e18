#include "insertion/page_backups.h"

#include "core/numbers.h"

#include <algorithm>

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

} // namespace

std::vector<PageBackup> BackupsOf(const FileStore& files, const KeptPages& kept, TextView page)
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
               const KeptPages& kept)
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
