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
Done CopyOrNoteMissing(const CopyJob& job, TextView folder, TextView name, TextView source,
                       MissingFiles& missing)
{
    const Done done = job.Copies->Copy(source, Join({folder, name}));
    const Fault* fault = FaultIn(done);
    if (!fault) {
        job.Report.FileCopied(folder);
    } else if (IsMissing(*fault)) {
        missing.emplace_back(name);
        return {};
    }
    return done;
}

Done CopyListedFile(const CopyJob& job, TextView folder, TextView name, TextView source,
                    MissingFiles& missing)
{
    if (source.empty()) {
        missing.emplace_back(name);
        return {};
    }
    const Text destination = Join({folder, name});
    if (job.Files.IsTaken(destination)) {
        // Stays as it is: names that differ in case alone count as the same file.
        if (EqualIgnoringCase(destination, source) || job.Copies->IsCancelled() ||
            !job.MayOverwrite(name))
            return {};
    }
    return CopyOrNoteMissing(job, folder, name, source, missing);
}

Done CopyClassFiles(const CopyJob& job, TextView folder, MissingFiles& missing)
{
    if (folder == WithSeparator(job.ProgramFolder))
        return {};
    for (const Text& name : job.Payload.Effect.SupportFiles) {
        if (name.empty())
            continue;
        const Done done =
            CopyOrNoteMissing(job, folder, name, PathIn(job.ProgramFolder, name), missing);
        if (FaultIn(done))
            return done;
    }
    return {};
}

/// Whether the page script may take the place of the file of its name: an earlier version of it is
/// replaced and a later one stays; about any other file, and a version that was changed, the author
/// is asked.
bool MayReplace(const CopyJob& job, const Outcome<std::string>& present, const std::string& own)
{
    if (!FaultIn(present)) {
        const std::string& file = ValueIn(present);
        if (IsLaterVersion(PageScriptVersion(file), PageScriptVersion(own)))
            return false;
        if (file == own || IsPageScriptUnchanged(file))
            return true;
    }
    return job.MayOverwrite(pageScriptFile);
}

Done CopyPageScript(const CopyJob& job, TextView folder, MissingFiles& missing)
{
    if (!job.Payload.WantsPageScript || folder == WithSeparator(job.ProgramFolder))
        return {};
    const Text source = PathIn(job.ProgramFolder, pageScriptFile);
    const Text destination = Join({folder, pageScriptFile});
    if (job.Files.IsTaken(destination)) {
        if (job.Copies->IsCancelled())
            return {};
        const auto own = job.Files.Read(source);
        if (FaultIn(own)) {
            missing.emplace_back(pageScriptFile);
            return {};
        }
        if (!MayReplace(job, job.Files.Read(destination), ValueIn(own)))
            return {};
    }
    return CopyOrNoteMissing(job, folder, pageScriptFile, source, missing);
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
std::vector<Text> SourcesOf(const CopyJob& job)
{
    std::vector<Text> sources;
    for (const PickedFile& file : PickedFiles(job.Payload.Effect.Required))
        if (!file.Source.empty())
            sources.push_back(file.Source);
    for (const Text& name : job.Payload.Effect.SupportFiles)
        sources.push_back(PathIn(job.ProgramFolder, name));
    return sources;
}

/// Copies whatever a page needs; gives Cancelled when the author ended it.
Done CopyAll(CopyJob job, TextView folder, MissingFiles& missing)
{
    FollowedCopies copies(job.Files, job.Dialogs, folder, SourcesOf(job));
    job.Copies = &copies;
    for (const auto& [name, source] : PickedFiles(job.Payload.Effect.Required)) {
        const Done done = CopyListedFile(job, folder, name, source, missing);
        if (FaultIn(done))
            return done;
    }
    for (const auto copy : {CopyClassFiles, CopyPageScript}) {
        const Done done = copy(job, folder, missing);
        if (FaultIn(done))
            return done;
    }
    if (copies.IsCancelled())
        return Fault::Cancelled;
    return {};
}

/// Brings the author's files to the preview page; gives those that are missing there.
MissingFiles CopyForPreview(const CopyJob& job)
{
    FollowedCopies copies(job.Files, job.Dialogs, job.ProgramFolder, SourcesOf(job));
    const std::vector<Text> present = job.Files.Files(job.ProgramFolder);
    MissingFiles missing;
    for (const auto& [name, source] : PickedFiles(job.Payload.Effect.Required)) {
        if (source.empty()) {
            missing.push_back(name);
        } else if (!IsListed(present, name)) {
            const Done done = copies.Copy(source, PathIn(job.ProgramFolder, name));
            if (FaultIn(done) && !copies.IsCancelled())
                missing.push_back(name);
        }
    }
    return missing;
}

} // namespace

Text CopyJob::SourceOf(TextView name) const
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

bool CopyJob::MayOverwrite(TextView name) const
{
    return Dialogs.Ask(Join({name, u" already exists in this folder.  Do you wish to overwrite?"}));
}

bool CopyPageScriptTo(CopyJob job, TextView folder)
{
    MissingFiles missing;
    const Done done = [&] {
        FollowedCopies copies(job.Files, job.Dialogs, folder, {});
        job.Copies = &copies;
        return CopyPageScript(job, folder, missing);
    }();
    if (const Fault* fault = FaultIn(done))
        job.Dialogs.Say(Words(*fault));
    return !FaultIn(done) && missing.empty();
}

void CopyHere(const CopyJob& job, TextView source, TextView folder, TextView name)
{
    const Text destination = Join({folder, name});
    if (job.Files.IsTaken(destination) && !job.MayOverwrite(name))
        return;
    const TextView into = FolderOf(destination);
    Done done = into == folder ? Done() : MakeFolders(job.Files, Left(into, into.size() - 1));
    if (!FaultIn(done)) {
        FollowedCopies copies(job.Files, job.Dialogs, into, {Text(source)});
        done = copies.Copy(source, destination);
    }
    if (const Fault* fault = FaultIn(done); fault && *fault != Fault::Cancelled)
        job.Dialogs.Say(Join({name, u": ", Words(*fault)}));
}

Outcome<MissingFiles> CopyRequiredFiles(const CopyJob& job, TextView folder)
{
    MissingFiles missing;
    const Done done = CopyAll(job, folder, missing);
    if (const Fault* fault = FaultIn(done); fault && *fault != Fault::Cancelled)
        return *fault;
    if (missing.empty()) {
        job.Dialogs.Say(
            Join({u"All files have been copied to the ", folder,
                  u" folder.  Now you can easily upload these files to the Internet."}));
    } else if (FaultIn(done)) {
        job.Dialogs.Say(Join({u"You ended the copying.  These files were not copied to the ",
                              folder, u" folder: ", Listed(missing)}),
                        Tone::Exclamation);
        return Fault::Cancelled;
    } else {
        job.Dialogs.Say(
            Lines(u"Orvane couldn't copy all the necessary files to the specified folder.",
                  job.HasFileList
                      ? u"Use the file list on the left to find the missing files and click the "
                        u"'Copy' button to copy them."
                      : Join({u"Please copy these files to the ", folder, u" folder yourself: ",
                              Listed(missing)})),
            Tone::Exclamation);
    }
    return missing;
}

MissingFiles CopyRequiredFilesForPreview(const CopyJob& job)
{
    const MissingFiles missing = CopyForPreview(job);
    if (!missing.empty())
        job.Dialogs.Say(
            Lines(u"Orvane can't preview the special effect because it could not find the "
                  u"necessary files.",
                  u"Use the file list below to find the missing files and click the 'Copy' button "
                  u"to copy them to the Orvane folder."),
            Tone::Exclamation);
    return missing;
}

Outcome<MissingFiles> Publish(const CopyJob& job, TextView folder)
{
    const Text target = WithSeparator(folder);
    const Text page = target + u"ovtemp.html";
    const Text question = Paragraphs(
        u"ovtemp.html already exists in this folder.  This file contains HTML code that controls a "
        u"Orvane special effect that you previously created.",
        u"Do you wish to overwrite this with the new ovtemp.html file that controls the current "
        u"special effect?");
    if (!job.Files.IsTaken(page) || job.Dialogs.Ask(question)) {
        const Done done = job.Files.PutNew(page, NewPageBytes(job.Payload));
        if (const Fault* fault = FaultIn(done))
            return *fault;
    }
    job.Report.PagePublished(page);
    return CopyRequiredFiles(job, target);
}

} // namespace orvane
