#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// What a recovery copy holds: a file's content before and after the overwriting that it guards.
/// The bytes themselves are somebody else's.
struct RecoveryCopy
{
    std::string_view Path; ///< for a person who finds the copy
    std::string_view Old;
    std::string_view New;
    bool operator==(const RecoveryCopy&) const = default;
};

/// The bytes of a recovery copy: the line "Orvane recovery copy: «P» bytes of path, «O» of old
/// content, «N» of new content", and behind it the three.
std::string WriteRecoveryCopy(const RecoveryCopy& copy);

/// The copy that lies in these bytes, or nothing when they are none or not all of it.
std::optional<RecoveryCopy> ReadRecoveryCopy(std::string_view bytes);

/// Whether an overwriting of `copy.Old` with `copy.New` that was cut short can have left `content`:
/// each byte is that of the one or the other, or a zero behind the end of the old content.
bool IsHalfWritten(std::string_view content, const RecoveryCopy& copy);

} // namespace orvane
