#include "insertion/page_writing.h"

namespace orvane {

namespace {

constexpr PageWritingWords plainWords = {
    .OpenElsewhere = u"Your Web page file is open in another application.  Please close the open "
                     u"Web page file or exit the application you are using to edit it."
                     u"\r\n\r\n"
                     u"Then try again.",
    .TooLarge = u"Your Web page file is larger than 512 MB, which is too large for Orvane.",
    .Changed = u"Another application has changed your Web page file in the meantime.  The file "
               u"stays as that application saved it."
               u"\r\n\r\n"
               u"Please look at the page again, and then try again.",
};

} // namespace

void TellFault(Dialogs& dialogs, Fault fault, const PageWritingWords& words)
{
    if (fault == Fault::PermissionDenied)
        dialogs.Say(words.OpenElsewhere);
    else
        dialogs.Say(fault == Fault::OutOfMemory ? words.TooLarge : Words(fault));
}

std::optional<std::string> ReadPage(const FileStore& files, Dialogs& dialogs, TextView page,
                                    const PageWritingWords& words)
{
    auto read = files.Read(page);
    if (const Fault* fault = FaultIn(read)) {
        TellFault(dialogs, *fault, words);
        return std::nullopt;
    }
    return std::get<std::string>(std::move(read));
}

bool BackUpPage(FileStore& files, Dialogs& dialogs, TextView page, const BackupsPlace& place,
                std::string_view bytes, const PageWritingWords& words)
{
    const Done backedUp = BackUp(files, BackupPath(page), page, bytes);
    if (const Fault* fault = FaultIn(backedUp)) {
        TellFault(dialogs, *fault, words);
        return false;
    }
    KeepFirstBackup(files, place, page, bytes);
    return true;
}

bool WritePage(FileStore& files, Dialogs& dialogs, TextView page, std::string_view bytes,
               std::string_view edited, const PageWritingWords& words, std::string_view rest)
{
    const auto written = files.Exchange(page, bytes, edited, rest);
    if (const Fault* fault = FaultIn(written))
        TellFault(dialogs, *fault, words);
    else if (!ValueIn(written))
        dialogs.Say(words.Changed);
    else
        return true;
    return false;
}

bool PutPage(FileStore& files, Dialogs& dialogs, TextView page, const BackupsPlace& place,
             std::string_view shown, std::string_view edited)
{
    const auto bytes = ReadPage(files, dialogs, page, plainWords);
    if (!bytes)
        return false;
    if (*bytes != shown) {
        dialogs.Say(plainWords.Changed);
        return false;
    }
    return BackUpPage(files, dialogs, page, place, shown, plainWords) &&
           WritePage(files, dialogs, page, shown, edited, plainWords);
}

} // namespace orvane
