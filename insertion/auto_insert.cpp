#include "insertion/auto_insert.h"

#include "insertion/page_script.h"
#include "insertion/page_writing.h"

namespace orvane {

namespace {

constexpr TextView replaceQuestion =
    u"Orvane has found existing code for this special effect in your Web page.  Do you want to "
    u"replace it?";

constexpr TextView manualWords =
    u"We suggest you manually insert the special effect code into your Web page.  Follow the "
    u"instructions below.";

constexpr PageWritingWords insertionWords = {
    .OpenElsewhere = u"Your Web page file is open in another application.  Please close the open "
                     u"Web page file or exit the application you are using to edit it."
                     u"\r\n\r\n"
                     u"Then try to AutoInsert the special effect again.",
    .TooLarge = u"Your Web page file is larger than 512 MB, which is too large for AutoInsert.  "
                u"Please insert the special effect code manually.",
    .Changed = u"Another application has changed your Web page file in the meantime.  The file "
               u"stays as that application saved it, without the special effect."
               u"\r\n\r\n"
               u"Please try to AutoInsert the special effect again.",
};

constexpr TextView noHeadWords =
    u"The special effect is in your Web page, but the page script is not: your Web page has no HEAD "
    u"tag."
    u"\r\n\r\n"
    u"To make the special effect run in today's browsers, insert these lines manually at the top of "
    u"your Web page, behind the <HTML> tag and in front of all special effects:"
    u"\r\n\r\n";

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
    const auto bytes = ReadPage(files, dialogs, page, insertionWords);
    if (!bytes || !BackUpPage(files, dialogs, page, place, *bytes, insertionWords))
        return AutoInsertion::NothingDone;
    const PageEdit edit =
        EditPageAndScript(*bytes, payload, [&] { return dialogs.Ask(replaceQuestion); });
    if (const Fault* fault = std::get_if<Fault>(&edit)) {
        TellFault(dialogs, *fault, insertionWords);
        return AutoInsertion::NothingDone;
    }
    if (std::holds_alternative<ManualFallback>(edit)) {
        dialogs.Say(manualWords);
        return AutoInsertion::Manual;
    }
    const EditedPage& edited = std::get<EditedPage>(edit);
    const std::string_view rest = edited.RestOf(*bytes);
    if (!WritePage(files, dialogs, page, *bytes, edited.Bytes, insertionWords, rest))
        return AutoInsertion::NothingDone;
    if (payload.WantsPageScript && !HasPageScript(edited.Bytes) && !HasPageScript(rest))
        dialogs.Say(Join({noHeadWords, LinesOfPageScript()}));
    return AutoInsertion::Inserted;
}

bool InsertPageScript(FileStore& files, Dialogs& dialogs, TextView page,
                      const FinishedPayload& payload, const BackupsPlace& place)
{
    const auto bytes = ReadPage(files, dialogs, page, insertionWords);
    if (!bytes)
        return false;
    const std::string edited = WithPageScriptFor(*bytes, payload);
    if (!HasPageScript(edited)) {
        dialogs.Say(Join({noHeadWords, LinesOfPageScript()}));
        return false;
    }
    if (edited == *bytes)
        return true;
    const Done isKept = KeepBackup(files, place, page, *bytes);
    if (const Fault* fault = FaultIn(isKept)) {
        dialogs.Say(Words(*fault));
        return false;
    }
    return WritePage(files, dialogs, page, *bytes, edited, insertionWords);
}

} // namespace orvane
