#pragma once

#include "core/complaint.h"
#include "core/file_store.h"
#include "core/payload.h"

#include <cstddef>
#include <optional>

namespace orvane {

/// How a complaint calls a file.
enum class FileRole
{
    Image,
    Sound,
};

/// The complaint about a file name with a blank in it, with the name as its last line, or nothing;
/// for effects whose tags allow no blank.
std::optional<Complaint> CheckNoBlank(TextView fileName, FileRole role);

/// Records a file in the next free slot. When all slots are used it is not recorded, but still
/// counted.
void RecordRequiredFile(RequiredFiles& files, TextView source, TextView name);

/// The source of the file of that name, as it was recorded last; empty when it was not.
Text SourceOf(const RequiredFiles& files, TextView name);

/// Takes files whose source is not known from this folder, where one of their name lies there.
void TakeSourcesFrom(RequiredFiles& required, const FileStore& files, TextView folder);

/// Puts the file name of a field into a slot. The source that Browse left in the slot stays only if
/// it is the path of that file; a typed name, or an empty one, has no source. Throws
/// std::out_of_range for a slot above 50.
void RequireFile(RequiredFiles& files, std::size_t slot, TextView name);

/// Puts the file name of a field into a slot. The source that Browse left in the slot stays, also
/// behind a name that was typed over it, until the name is empty. Throws std::out_of_range for a
/// slot above 50.
void RequireBrowsedFile(RequiredFiles& files, std::size_t slot, TextView name);

/// Puts a file into a slot and gives its name, which is what follows the last separator of `path`.
/// The source is `path` if it has a folder, else empty. Throws std::out_of_range for a slot above
/// 50.
Text RequirePath(RequiredFiles& files, std::size_t slot, TextView path);

} // namespace orvane
