#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// What a recovery copy holds: a file's content before it is overwritten, and the content that it
/// gets. The bytes are borrowed, not owned.
struct RecoveryCopy
{
    std::string_view Path; ///< of the file; tells a person who finds the copy
    std::string_view Old;
    std::string_view New;
    bool operator==(const RecoveryCopy&) const = default;
};

/// The bytes of a recovery copy: the line "Orvane recovery copy: «P» bytes of path, «O» of old
/// content, «N» of new content", then path, old content and new content.
std::string WriteRecoveryCopy(const RecoveryCopy& copy);

/// The copy in these bytes, which it borrows; nothing when they are not a whole recovery copy.
std::optional<RecoveryCopy> ReadRecoveryCopy(std::string_view bytes);

/// Whether `content` can be what an interrupted overwriting of `copy.Old` with `copy.New` left: its
/// size lies between theirs, and each byte is that of the one or the other, or a zero behind the
/// end of the old content.
bool IsHalfWritten(std::string_view content, const RecoveryCopy& copy);

} // namespace orvane
