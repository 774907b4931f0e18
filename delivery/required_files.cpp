#include "delivery/required_files.h"

#include "core/file_names.h"
#include "insertion/new_page.h"
#include "insertion/page_script.h"
#include "services/add_once.h"

namespace orvane {

namespace {

Text Lines(TextView first, TextView second)
{
    return Join({first, lineEnd, second});
}

Text Paragraphs(TextView first, TextView second)
{
    return Join({first, lineEnd, lineEnd, second});
}

/// Whether a copy failed for a reason of that one file, so that the others may still be copied, or
/// at least be listed as missing.
bool IsMissing(Fault fault)
{
    return fault == Fault::Cancelled || fault == Fault::FileNotFound ||
           fault == Fault::PermissionDenied || fault == Fault::PathFileAccess;
}

/// Copies a file; one that cannot be copied goes to the missing ones, any other fault comes back.
Done CopyOrMiss(const CopyDesk& desk, TextView folder, TextView name, TextView source,
                MissingFiles& missing)
{
    const Done done = desk.Copies->Copy(source, Join({folder, name}));
    const Fault* fault = FaultIn(done);
    if (!fault) {
        desk.Report.FileCopied(folder);
    } else if (IsMissing(*fault)) {
        missing.emplace_back(name);
        return {};
    }
    return done;
}

Done CopyListedFile(const CopyDesk& desk, TextView folder, TextView name, TextView source,
                    MissingFiles& missing)
{
    if (source.empty()) {
        missing.emplace_back(name);
        return {};
    }
    const Text destination = Join({folder, name});
    if (desk.Files.IsTaken(destination)) {
        // Stays as it is: names that differ in case alone count as the same file.
        if (EqualIgnoringCase(destination, source) || desk.Copies->IsCancelled() ||
            !desk.MayOverwrite(name))
            return {};
    }
    return CopyOrMiss(desk, folder, name, source, missing);
}

Done CopyClassFiles(const CopyDesk& desk, TextView folder, MissingFiles& missing)
{
    if (folder == WithSeparator(desk.ProgramFolder))
        return {};
    for (const Text& name : desk.Payload.Effect.SupportFiles) {
        if (name.empty())
            continue;
        const Done done = CopyOrMiss(desk, folder, name, PathIn(desk.ProgramFolder, name), missing);
        if (FaultIn(done))
            return done;
    }
    return {};
}

/// Whether the page script may take the place of the file of its name: an earlier version of it is
/// replaced and a later one stays; about any other file, and a version that was changed, the author
/// is asked.
bool MayReplace(const CopyDesk& desk, const Outcome<std::string>& present, const std::string& own)
{
    if (!FaultIn(present)) {
        const std::string& file = ValueIn(present);
        if (IsLaterVersion(PageScriptVersion(file), PageScriptVersion(own)))
            return false;
        if (file == own || IsPageScriptUnchanged(file))
            return true;
    }
    return desk.MayOverwrite(pageScriptFile);
}

Done CopyPageScript(const CopyDesk& desk, TextView folder, MissingFiles& missing)
{
    if (!desk.Payload.RunsToday || folder == WithSeparator(desk.ProgramFolder))
        return {};
    const Text source = PathIn(desk.ProgramFolder, pageScriptFile);
    const Text destination = Join({folder, pageScriptFile});
    if (desk.Files.IsTaken(destination)) {
        if (desk.Copies->IsCancelled())
            return {};
        const auto own = desk.Files.Read(source);
        if (FaultIn(own)) {
            missing.emplace_back(pageScriptFile);
            return {};
        }
        if (!MayReplace(desk, desk.Files.Read(destination), ValueIn(own)))
            return {};
    }
    return CopyOrMiss(desk, folder, pageScriptFile, source, missing);
}

/// A file that the author picked, under the name that the page knows it by.
struct PickedFile
{
    Text Name;
    Text Source; ///< empty when nobody knows where it lies
    bool operator==(const PickedFile&) const = default;
};

/// The author's files, those once that a page names several times.
std::vector<PickedFile> PickedFiles(const RequiredFiles& required)
{
    std::vector<PickedFile> files;
    for (std::size_t i = 0; i < required.RequiredFileNames.size(); ++i)
        if (!required.RequiredFileNames[i].empty())
            AddOnce(files,
                    PickedFile{required.RequiredFileNames[i], required.RequiredFileSources[i]});
    return files;
}

/// The sources of all files that the payload names.
std::vector<Text> SourcesOf(const CopyDesk& desk)
{
    std::vector<Text> sources;
    for (const PickedFile& file : PickedFiles(desk.Payload.Effect.Required))
        if (!file.Source.empty())
            sources.push_back(file.Source);
    for (const Text& name : desk.Payload.Effect.SupportFiles)
        sources.push_back(PathIn(desk.ProgramFolder, name));
    return sources;
}

/// Copies whatever a page needs; gives Cancelled when the author ended it.
Done CopyAll(CopyDesk desk, TextView folder, MissingFiles& missing)
{
    FollowedCopies copies(desk.Files, desk.Dialogs, folder, SourcesOf(desk));
    desk.Copies = &copies;
    for (const auto& [name, source] : PickedFiles(desk.Payload.Effect.Required)) {
        const Done done = CopyListedFile(desk, folder, name, source, missing);
        if (FaultIn(done))
            return done;
    }
    for (const auto copy : {CopyClassFiles, CopyPageScript}) {
        const Done done = copy(desk, folder, missing);
        if (FaultIn(done))
            return done;
    }
    if (copies.IsCancelled())
        return Fault::Cancelled;
    return {};
}

/// Brings the author's files to the preview page; gives those that are missing there.
MissingFiles CopyForPreview(const CopyDesk& desk)
{
    FollowedCopies copies(desk.Files, desk.Dialogs, desk.ProgramFolder, SourcesOf(desk));
    const std::vector<Text> present = desk.Files.Files(desk.ProgramFolder);
    MissingFiles missing;
    for (const auto& [name, source] : PickedFiles(desk.Payload.Effect.Required)) {
        if (source.empty()) {
            missing.push_back(name);
        } else if (!IsListed(present, name)) {
            const Done done = copies.Copy(source, PathIn(desk.ProgramFolder, name));
            if (FaultIn(done) && !copies.IsCancelled())
                missing.push_back(name);
        }
    }
    return missing;
}

} // namespace

Text CopyDesk::SourceOf(TextView name) const
{
    const EffectPayload& effect = Payload.Effect;
    for (std::size_t i = 0; i < effect.Required.RequiredFileNames.size(); ++i)
        if (effect.Required.RequiredFileNames[i] == name &&
            !effect.Required.RequiredFileSources[i].empty())
            return effect.Required.RequiredFileSources[i];
    if (name == pageScriptFile ||
        std::ranges::find(effect.SupportFiles, name) != effect.SupportFiles.end())
        return PathIn(ProgramFolder, name);
    return {};
}

bool CopyDesk::MayOverwrite(TextView name) const
{
    return Dialogs.Ask(Join({name, u" already exists in this folder.  Do you wish to overwrite?"}));
}

bool CopyPageScriptTo(CopyDesk desk, TextView folder)
{
    MissingFiles missing;
    const Done done = [&] {
        FollowedCopies copies(desk.Files, desk.Dialogs, folder, {});
        desk.Copies = &copies;
        return CopyPageScript(desk, folder, missing);
    }();
    if (const Fault* fault = FaultIn(done))
        desk.Dialogs.Say(Words(*fault));
    return !FaultIn(done) && missing.empty();
}

void CopyHere(const CopyDesk& desk, TextView source, TextView folder, TextView name)
{
    const Text destination = Join({folder, name});
    if (desk.Files.IsTaken(destination) && !desk.MayOverwrite(name))
        return;
    const TextView into = FolderOf(destination);
    Done done = into == folder ? Done() : MakeFolders(desk.Files, Left(into, into.size() - 1));
    if (!FaultIn(done)) {
        FollowedCopies copies(desk.Files, desk.Dialogs, into, {Text(source)});
        done = copies.Copy(source, destination);
    }
    if (const Fault* fault = FaultIn(done); fault && *fault != Fault::Cancelled)
        desk.Dialogs.Say(Join({name, u": ", Words(*fault)}));
}

Outcome<MissingFiles> CopyRequiredFiles(const CopyDesk& desk, TextView folder)
{
    MissingFiles missing;
    const Done done = CopyAll(desk, folder, missing);
    if (const Fault* fault = FaultIn(done); fault && *fault != Fault::Cancelled)
        return *fault;
    if (missing.empty()) {
        desk.Dialogs.Say(
            Join({u"All files have been copied to the ", folder,
                  u" folder.  Now you can easily upload these files to the Internet."}));
    } else if (FaultIn(done)) {
        desk.Dialogs.Say(Join({u"You ended the copying.  These files were not copied to the ",
                               folder, u" folder: ", Listed(missing)}),
                         Tone::Exclamation);
        return Fault::Cancelled;
    } else {
        desk.Dialogs.Say(
            Lines(u"Orvane couldn't copy all the necessary files to the specified folder.",
                  u"Use the file list on the left to find the missing files and click the 'Copy' "
                  u"button to copy them."),
            Tone::Exclamation);
    }
    return missing;
}

MissingFiles CopyRequiredFilesForPreview(const CopyDesk& desk)
{
    const MissingFiles missing = CopyForPreview(desk);
    if (!missing.empty())
        desk.Dialogs.Say(
            Lines(u"Orvane can't preview the special effect because it could not find the "
                  u"necessary files.",
                  u"Use the file list below to find the missing files and click the 'Copy' button "
                  u"to copy them to the Orvane folder."),
            Tone::Exclamation);
    return missing;
}

Outcome<MissingFiles> Publish(const CopyDesk& desk, TextView folder)
{
    const Text target = WithSeparator(folder);
    const Text page = target + u"ovtemp.html";
    const Text question = Paragraphs(
        u"ovtemp.html already exists in this folder.  This file contains HTML code that controls a "
        u"Orvane special effect that you previously created.",
        u"Do you wish to overwrite this with the new ovtemp.html file that controls the current "
        u"special effect?");
    if (!desk.Files.IsTaken(page) || desk.Dialogs.Ask(question)) {
        const Done done = desk.Files.PutNew(page, NewPageBytes(desk.Payload));
        if (const Fault* fault = FaultIn(done))
            return *fault;
    }
    desk.Report.PagePublished(page);
    return CopyRequiredFiles(desk, target);
}

} // namespace orvane
