#include "insertion/auto_insert.h"

#include "insertion/page_script.h"

namespace orvane {

namespace {

constexpr TextView replaceQuestion =
    u"Orvane has found existing code for this special effect in your Web page.  Do you want to "
    u"replace it?";

constexpr TextView manualWords =
    u"We suggest you manually insert the special effect code into your Web page.  Follow the "
    u"instructions below.";

constexpr TextView openElsewhereWords =
    u"Your Web page file is open in another application.  Please close the open Web page file or "
    u"exit the application you are using to edit it."
    u"\r\n\r\n"
    u"Then try to AutoInsert the special effect again.";

constexpr TextView tooLargeWords =
    u"Your Web page file is larger than 512 MB, which is too large for AutoInsert.  Please insert "
    u"the special effect code manually.";

constexpr TextView changedWords =
    u"Another application has changed your Web page file in the meantime.  The file stays as that "
    u"application saved it, without the special effect."
    u"\r\n\r\n"
    u"Please try to AutoInsert the special effect again.";

constexpr TextView noHeadWords =
    u"The special effect is in your Web page, but the page script is not: your Web page has no HEAD "
    u"tag."
    u"\r\n\r\n"
    u"To make the special effect run in today's browsers, insert these lines manually at the top of "
    u"your Web page, behind the <HTML> tag and in front of all special effects:"
    u"\r\n\r\n";

/// The words for a fault that ends the command.
TextView TellingWords(Fault fault)
{
    if (fault == Fault::PermissionDenied)
        return openElsewhereWords;
    return fault == Fault::OutOfMemory ? tooLargeWords : Words(fault);
}

AutoInsertion Tell(Dialogs& dialogs, Fault fault)
{
    dialogs.Say(TellingWords(fault));
    return AutoInsertion::NothingDone;
}

/// Writes the edited page; false, and the author is told why, when it still holds its old bytes or
/// what another program wrote.
bool WritePage(FileStore& files, Dialogs& dialogs, TextView page, std::string_view bytes,
               std::string_view edited)
{
    const auto written = files.Exchange(page, bytes, edited);
    if (const Fault* fault = FaultIn(written))
        dialogs.Say(TellingWords(*fault));
    else if (!ValueIn(written))
        dialogs.Say(changedWords);
    else
        return true;
    return false;
}

} // namespace

std::optional<Complaint> CheckPageName(TextView txtFileName)
{
    if (txtFileName.empty())
        return Complaint{u"Please specify the filename of a Web page in the input box below.",
                         "txtFileName"};
    return std::nullopt;
}

Text PagePath(TextView txtFileName, TextView currentFolder)
{
    if (txtFileName.starts_with(pathSeparator))
        return Text(txtFileName);
    return PathIn(currentFolder, txtFileName);
}

AutoInsertion AutoInsert(FileStore& files, Dialogs& dialogs, TextView page,
                         const FinishedPayload& payload, const BackupsPlace& place)
{
    const auto read = files.Read(page);
    if (const Fault* fault = FaultIn(read))
        return Tell(dialogs, *fault);
    const std::string& bytes = ValueIn(read);
    const Done backedUp = BackUp(files, BackupPath(page), page, bytes);
    if (const Fault* fault = FaultIn(backedUp))
        return Tell(dialogs, *fault);
    KeepFirstBackup(files, place, page, bytes);

    const PageEdit edit =
        EditPageAndScript(bytes, payload, [&] { return dialogs.Ask(replaceQuestion); });
    if (const Fault* fault = std::get_if<Fault>(&edit))
        return Tell(dialogs, *fault);
    if (std::holds_alternative<ManualFallback>(edit)) {
        dialogs.Say(manualWords);
        return AutoInsertion::Manual;
    }
    const std::string& edited = std::get<EditedPage>(edit).Bytes;
    if (!WritePage(files, dialogs, page, bytes, edited))
        return AutoInsertion::NothingDone;
    if (payload.WantsPageScript && !HasPageScript(edited))
        dialogs.Say(Join({noHeadWords, LinesOfPageScript()}));
    return AutoInsertion::Inserted;
}

bool InsertPageScript(FileStore& files, Dialogs& dialogs, TextView page,
                      const FinishedPayload& payload, const BackupsPlace& place)
{
    const auto read = files.Read(page);
    if (const Fault* fault = FaultIn(read)) {
        dialogs.Say(TellingWords(*fault));
        return false;
    }
    const std::string& bytes = ValueIn(read);
    const std::string edited = WithPageScriptFor(bytes, payload);
    if (!HasPageScript(edited)) {
        dialogs.Say(Join({noHeadWords, LinesOfPageScript()}));
        return false;
    }
    if (edited == bytes)
        return true;
    const Done isKept = KeepBackup(files, place, page, bytes);
    if (const Fault* fault = FaultIn(isKept)) {
        dialogs.Say(Words(*fault));
        return false;
    }
    return WritePage(files, dialogs, page, bytes, edited);
}

} // namespace orvane
