#pragma once

#include "core/text.h"

#include <vector>

namespace orvane {

/// Stands between the folders of a path. A path that begins with it is parted by it alone; in any
/// other text, which comes from a page, a tag or the author, "\" parts folders as well.
inline constexpr char16_t pathSeparator = u'/';

/// The position of the last separator, counted from 1; 0 when there is none.
std::size_t LastSeparator(TextView path);

/// The name behind the last separator; the whole text when there is none.
TextView GetFileName(TextView path);

/// The part through the last separator, which it keeps; empty when there is none.
TextView FolderOf(TextView path);

/// The folder with a separator at its end; one is added when it has none.
Text WithSeparator(TextView folder);

/// The full path of a name in a folder.
Text PathIn(TextView folder, TextView name);

/// Whether the name fits one of the masks, such as "*.gif;*.jpg", upper and lower case taken as
/// equal. "*" stands for any characters, "?" for one; "*.*" fits every name.
bool MatchesMasks(TextView name, TextView masks);

/// Whether a name or path comes before another one in a list that an author reads: upper and lower
/// case are equal, and numbers count by their value, so that "frame 2" comes before "frame 10".
bool ComesBefore(TextView name, TextView other);

/// Whether `name` is among `names`, upper and lower case taken as equal.
bool IsListed(const std::vector<Text>& names, TextView name);

} // namespace orvane
