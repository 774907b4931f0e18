#include "tests/fuzz/browser_sight.h"

#include <cctype>
#include <optional>

namespace orvane::testing {

namespace {

bool Starts(const std::string& page, std::size_t at, const std::string& words)
{
    for (std::size_t i = 0; i < words.size(); ++i)
        if (at + i >= page.size() ||
            std::tolower(static_cast<unsigned char>(page[at + i])) != words[i])
            return false;
    return true;
}

/// Whether the words stand there as the whole name of a tag.
bool IsNamed(const std::string& page, std::size_t at, const std::string& words)
{
    return Starts(page, at, words) && at + words.size() < page.size() &&
           std::string("\t\n\f\r />").find(page[at + words.size()]) != std::string::npos;
}

std::size_t BehindComment(const std::string& page, std::size_t at)
{
    at += 4;
    if (Starts(page, at, ">"))
        return at + 1;
    if (Starts(page, at, "->"))
        return at + 2;
    const std::size_t end = page.find("-->", at);
    return end == std::string::npos ? page.size() : end + 3;
}

std::size_t BehindTag(const std::string& page, std::size_t at)
{
    while (at < page.size() && page[at] != '>') {
        if (page[at++] != '=')
            continue;
        while (at < page.size() && std::isspace(static_cast<unsigned char>(page[at])))
            ++at;
        if (at < page.size() && (page[at] == '"' || page[at] == '\'')) {
            const std::size_t end = page.find(page[at], at + 1);
            at = end == std::string::npos ? page.size() : end + 1;
        }
    }
    return at + 1;
}

/// The place of the tag that ends the script.
std::size_t EndOfScript(const std::string& page, std::size_t at)
{
    enum
    {
        Plain,
        Escaped,
        Doubled,
    } state = Plain;
    for (; at < page.size(); ++at) {
        if (Starts(page, at, "-->")) {
            state = Plain;
        } else if (state == Plain && Starts(page, at, "<!--")) {
            state = Escaped;
            ++at; // the next signs are its dashes, which may close it
        } else if (IsNamed(page, at, "</script")) {
            if (state != Doubled)
                return at;
            state = Escaped;
        } else if (state == Escaped && IsNamed(page, at, "<script")) {
            state = Doubled;
        }
    }
    return at;
}

} // namespace

std::vector<std::pair<std::size_t, std::size_t>> CommentsSeen(const std::string& page)
{
    std::vector<std::pair<std::size_t, std::size_t>> seen;
    for (std::size_t at = 0; at < page.size();) {
        const std::size_t letter = at + (Starts(page, at, "</") ? 2 : 1);
        if (Starts(page, at, "<!--")) {
            seen.emplace_back(at, BehindComment(page, at));
            at = seen.back().second;
        } else if (page[at] == '<' && letter < page.size() &&
                   std::isalpha(static_cast<unsigned char>(page[letter]))) {
            const bool isScript = IsNamed(page, at, "<script");
            at = BehindTag(page, at);
            if (isScript && at <= page.size())
                at = EndOfScript(page, at);
        } else {
            ++at;
        }
    }
    return seen;
}

} // namespace orvane::testing
