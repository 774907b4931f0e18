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

bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

/// Takes the number at the start of a text off it, and gives it without zeros in front.
TextView TakeNumber(TextView& text)
{
    std::size_t end = 0;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    TextView number = text.substr(0, end);
    text.remove_prefix(end);
    number.remove_prefix(std::min(number.find_first_not_of(u'0'), number.size()));
    return number;
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

bool ComesBefore(TextView name, TextView other)
{
    TextView left = name;
    TextView right = other;
    while (!left.empty() && !right.empty()) {
        if (IsDigit(left.front()) && IsDigit(right.front())) {
            const TextView number = TakeNumber(left);
            const TextView otherNumber = TakeNumber(right);
            if (number.size() != otherNumber.size())
                return number.size() < otherNumber.size();
            if (number != otherNumber)
                return number < otherNumber;
        } else if (ToLower(left.front()) != ToLower(right.front())) {
            return ToLower(left.front()) < ToLower(right.front());
        } else {
            left.remove_prefix(1);
            right.remove_prefix(1);
        }
    }
    return left.empty() && right.empty() ? name < other : left.empty();
}

} // namespace orvane
