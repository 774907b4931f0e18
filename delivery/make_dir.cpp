#include "delivery/make_dir.h"

#include "core/file_names.h"

namespace orvane {

MakeDirEnd MakeDirEnter(TextView folder, TextView field, FileStore& files, Dialogs& dialogs)
{
    if (field.empty()) {
        dialogs.Say(u"Please enter a new folder name for Orvane to create.");
        return {.Closes = false};
    }
    const TextView name = Trim(field);
    if (name.empty())
        return {.Closes = true};
    const Text created = PathIn(folder, name);
    // A failure is seen below: the folder is then not there.
    static_cast<void>(files.MakeFolder(created));
    if (!files.FolderExists(created))
        return {.Closes = true};
    return {.Closes = true, .NewFolder = created};
}

} // namespace orvane
