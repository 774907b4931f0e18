#include "delivery/manual_copy.h"

#include "core/file_names.h"

namespace orvane {

namespace {

/// Brings one selected file to its folder; false when the author or a fault prevented it.
bool CopySelected(const CopyJob& job, TextView fromFolder, TextView toFolder, TextView name)
{
    const Text source = PathIn(fromFolder, name);
    const Text destination = PathIn(toFolder, name);
    if (source == destination)
        return true;
    // A folder that cannot be listed may hold the name all the same.
    const bool isThere =
        IsListed(job.Files.Files(toFolder), name) || job.Files.IsTaken(destination);
    if (isThere && !job.MayOverwrite(name))
        return false;
    const Done done = job.Copies->Copy(source, destination);
    if (const Fault* fault = FaultIn(done)) {
        if (*fault != Fault::Cancelled)
            job.Dialogs.Say(Join({name, u": ", Words(*fault)}));
        return false;
    }
    job.Report.FileCopied(toFolder);
    return true;
}

/// The names of those that were copied, each followed by ", ".
Text CopyAllSelected(CopyJob job, TextView fromFolder, TextView toFolder,
                     const std::vector<Text>& selected, MissingFiles& missing)
{
    std::vector<Text> sources;
    for (const Text& name : selected)
        sources.push_back(PathIn(fromFolder, name));
    FollowedCopies copies(job.Files, job.Dialogs, toFolder, sources);
    job.Copies = &copies;
    Text copied;
    for (const Text& name : selected) {
        if (copies.IsCancelled() || !CopySelected(job, fromFolder, toFolder, name))
            continue;
        std::erase(missing, name);
        copied += name + u", ";
    }
    return copied;
}

} // namespace

void ManualCopy(const CopyJob& job, TextView fromFolder, TextView toFolder,
                const std::vector<Text>& selected, MissingFiles& missing)
{
    if (selected.empty())
        return job.Dialogs.Say(u"Select a file from the list and then click the 'Copy' button");
    // Stays as it is: the box comes with an empty list when nothing was copied.
    job.Dialogs.Say(Join({u"The following files were successfully copied:", lineEnd, lineEnd,
                          CopyAllSelected(job, fromFolder, toFolder, selected, missing)}));
}

} // namespace orvane
