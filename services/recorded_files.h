#pragma once

#include "core/complaint.h"
#include "core/orvane_core.h"

#include <cstddef>
#include <optional>

namespace orvane {

/// What a file is, in the words of a refusal.
enum class FileRole
{
    Image,
    Sound,
};

/// The refusal of a file name with a blank in it, for effects whose tags do not allow one.
std::optional<Complaint> CheckNoBlank(TextView fileName, FileRole role);

/// Empties the tables of files to copy.
void ClearRequiredFiles(OrvaneCore& core);

/// Records a file at the next free slot of the tables of files to copy. Behind the last slot
/// nothing is recorded, and the count goes on.
void RecordRequiredFile(OrvaneCore& core, TextView source, TextView name);

/// Where the file of that name was recorded from, the last time that it was; empty for one that was
/// not.
Text SourceOf(const OrvaneCore& core, TextView name);

/// Counts the recorded files anew after the tables were filled: the next free slot is the one
/// behind the last that is used.
void SetRequiredFileCount(OrvaneCore& core);

/// Puts the name of a field into a slot. The source that Browse left there stays only while it is
/// that file's: a name that was typed, or emptied, has none. Expects a slot below 51.
void RequireFile(RequiredFiles& files, std::size_t slot, TextView name);

/// Puts a file that is named with or without its folder into a slot: the name is what follows the
/// last separator, and without a folder there is no source. Gives the name.
Text RequirePath(RequiredFiles& files, std::size_t slot, TextView path);

} // namespace orvane
