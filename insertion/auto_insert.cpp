#include "insertion/auto_insert.h"

#include "core/file_names.h"
#include "disk/program_folder.h"
#include "insertion/page_edit.h"

#include <filesystem>
#include <tuple>

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

AutoInsertion Tell(Dialogs& dialogs, Fault fault)
{
    dialogs.Say(fault == Fault::PermissionDenied ? openElsewhereWords : Words(fault));
    return AutoInsertion::NothingDone;
}

bool IsMissing(const Outcome<std::string>& read)
{
    const Fault* fault = FaultIn(read);
    return fault && (*fault == Fault::FileNotFound || *fault == Fault::PathNotFound);
}

/// Whatever already lies at that place, even unreadable, is an earlier backup and stays.
void KeepFirstBackup(FileStore& files, const KeptPages& kept, TextView page, std::string_view bytes)
{
    const Text path = KeptPagePath(kept, page);
    if (!IsMissing(files.Read(path)))
        return;
    const TextView folder = FolderOf(path);
    if (!FaultIn(MakeFolders(files, Left(folder, folder.size() - 1))))
        std::ignore = files.Replace(path, bytes);
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

Text KeptPagePath(const KeptPages& kept, TextView page)
{
    // Without this, ".." in a page's path would lead out of the folder.
    const auto plain = std::filesystem::path(ToUtf8(page)).lexically_normal();
    return PathIn(kept.Folder, kept.Day) + FromUtf8(plain.string());
}

AutoInsertion AutoInsert(FileStore& files, Dialogs& dialogs, TextView page,
                         const FinishedPayload& payload, const KeptPages& kept)
{
    const Text backup = Join({FolderOf(page), u"Backup of ", GetFileName(page)});
    const auto read = files.Read(page);
    if (const Fault* fault = FaultIn(read))
        return Tell(dialogs, *fault);
    const std::string& bytes = ValueIn(read);
    const Done backedUp = files.Replace(backup, bytes);
    if (const Fault* fault = FaultIn(backedUp))
        return Tell(dialogs, *fault);
    KeepFirstBackup(files, kept, page, bytes);

    bool wasAsked = false;
    const PageEdit edit = EditPage(bytes, payload, [&] {
        wasAsked = true;
        return dialogs.Ask(replaceQuestion);
    });
    if (const Fault* fault = std::get_if<Fault>(&edit))
        return Tell(dialogs, *fault);
    if (std::holds_alternative<ManualFallback>(edit)) {
        dialogs.Say(manualWords);
        return AutoInsertion::Manual;
    }
    if (wasAsked) {
        // While a question waits, the author may save the page from an editor.
        const auto now = files.Read(page);
        if (now != read)
            return Tell(dialogs, FaultIn(now) ? *FaultIn(now) : Fault::PermissionDenied);
    }
    const Done written = files.Replace(page, std::get<EditedPage>(edit).Bytes);
    if (const Fault* fault = FaultIn(written))
        return Tell(dialogs, *fault);
    return AutoInsertion::Inserted;
}

} // namespace orvane
