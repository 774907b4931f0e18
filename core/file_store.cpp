#include "core/file_store.h"

#include "core/file_names.h"

namespace orvane {

Done MakeFolders(FileStore& files, TextView path, Access access)
{
    if (path.empty() || files.FolderExists(path))
        return {};
    if (const std::size_t last = LastSeparator(path); last > 1) {
        const Done parent = MakeFolders(files, Left(path, last - 1), access);
        if (FaultIn(parent))
            return parent;
    }
    const Done made = files.MakeFolder(path, access);
    // Another program may have been quicker.
    return made == Done(Fault::PathFileAccess) && files.FolderExists(path) ? Done() : made;
}

} // namespace orvane
