#include "core/file_names.h"

#include <algorithm>

namespace orvane {

namespace {

/// On this machine "\" may stand in a name like any other character.
TextView SeparatorsIn(TextView path)
{
    return path.starts_with(pathSeparator) ? u"/" : u"/\\";
}

/// Matches one mask; on a mismatch behind a "*" the star takes one more character.
bool MatchesMask(TextView name, TextView mask)
{
    std::size_t n = 0;
    std::size_t m = 0;
    std::size_t star = TextView::npos;
    std::size_t taken = 0;
    while (n < name.size()) {
        if (m < mask.size() && mask[m] == u'*') {
            star = m++;
            taken = n;
        } else if (m < mask.size() && (mask[m] == u'?' || ToLower(mask[m]) == ToLower(name[n]))) {
            ++n;
            ++m;
        } else if (star != TextView::npos) {
            m = star + 1;
            n = ++taken;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of(u'*', m) == TextView::npos;
}

} // namespace

std::size_t LastSeparator(TextView path)
{
    const std::size_t place = path.find_last_of(SeparatorsIn(path));
    return place == TextView::npos ? 0 : place + 1;
}

TextView GetFileName(TextView path)
{
    return path.substr(LastSeparator(path));
}

TextView FolderOf(TextView path)
{
    return Left(path, LastSeparator(path));
}

Text WithSeparator(TextView folder)
{
    Text path(folder);
    if (LastSeparator(path) != path.size() || path.empty())
        path.push_back(pathSeparator);
    return path;
}

Text PathIn(TextView folder, TextView name)
{
    return WithSeparator(folder).append(name);
}

bool MatchesMasks(TextView name, TextView masks)
{
    while (!masks.empty()) {
        // "*.*" is every name, one without a dot too.
        const TextView mask = Trim(TakeUntil(masks, u';'));
        if (mask == u"*.*" || MatchesMask(name, mask))
            return true;
    }
    return false;
}

bool IsListed(const std::vector<Text>& names, TextView name)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const Text& listed) { return EqualIgnoringCase(listed, name); });
}

} // namespace orvane
