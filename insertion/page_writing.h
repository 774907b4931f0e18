#pragma once

#include "core/dialogs.h"
#include "insertion/page_backups.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// What the author is told when a page could not be read or written, in the words of the command.
struct PageWritingWords
{
    TextView OpenElsewhere; ///< another application holds it
    TextView TooLarge;
    TextView Changed; ///< another application wrote it meanwhile
};

/// Tells the author of the fault in the command's words.
void TellFault(Dialogs& dialogs, Fault fault, const PageWritingWords& words);

/// The bytes of the page; nothing, and the author is told why, when it cannot be read.
std::optional<std::string> ReadPage(const FileStore& files, Dialogs& dialogs, TextView page,
                                    const PageWritingWords& words);

/// Writes the backup beside the page and, when it is the day's first one, that in the place of the
/// backups. False, and the author is told why, when there is no backup beside the page.
bool BackUpPage(FileStore& files, Dialogs& dialogs, TextView page, const BackupsPlace& place,
                std::string_view bytes, const PageWritingWords& words);

/// Writes the edited page and, behind it, `rest` in place of `bytes`; false, and the author is told
/// why, when the page still holds its old bytes or what another program wrote.
bool WritePage(FileStore& files, Dialogs& dialogs, TextView page, std::string_view bytes,
               std::string_view edited, const PageWritingWords& words, std::string_view rest = {});

/// Writes a page in place of `shown`, the bytes that the author looked at, after the backups that
/// an insertion makes; false, and the author is told why, when the page is not written. Whatever
/// fails, it holds its old bytes or the new ones, and the backup the old ones. A page that another
/// program changes meanwhile stays as that program left it. Expects a full path.
bool PutPage(FileStore& files, Dialogs& dialogs, TextView page, const BackupsPlace& place,
             std::string_view shown, std::string_view edited);

} // namespace orvane
