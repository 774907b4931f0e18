#include "services/made_files.h"

#include "core/file_names.h"

#include <tuple>

namespace orvane {

Done WriteMadeFiles(FileStore& files, TextView programFolder, const EffectPayload& effect)
{
    for (const MadeFile& file : effect.MadeFiles) {
        const Text path = PathIn(programFolder, file.Name);
        const Done written =
            file.IsSecret ? files.PutPrivate(path, file.Bytes) : files.Replace(path, file.Bytes);
        if (FaultIn(written))
            return written;
    }
    return {};
}

void RemoveSecretFiles(FileStore& files, TextView programFolder, const EffectPayload& effect)
{
    for (const MadeFile& file : effect.MadeFiles)
        if (file.IsSecret)
            std::ignore = files.Remove(PathIn(programFolder, file.Name));
}

} // namespace orvane
