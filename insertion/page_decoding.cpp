#include "insertion/page_decoding.h"

#include "insertion/character_names.h"
#include "insertion/page_encoding.h"

#include <charconv>
#include <optional>
#include <string>

namespace orvane {

namespace {

/// The number at the start of `digits`, as a character; nothing when there is none.
std::optional<Text> CharacterOf(std::string_view digits, int base)
{
    unsigned number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    if (read.ec != std::errc() || read.ptr != digits.data() + digits.size() || number == 0 ||
        number > 0x10FFFF)
        return std::nullopt;
    // Pages mean the characters that Windows-1252 has at these places, and browsers know.
    if (number >= 0x80 && number < 0xA0)
        return FromWindows1252(std::string(1, static_cast<char>(number)));
    if (number < 0x10000)
        return Text(1, static_cast<char16_t>(number));
    return Text{static_cast<char16_t>(0xD7C0 + (number >> 10)),
                static_cast<char16_t>(0xDC00 + (number & 0x3FF))};
}

/// The character that a reference such as "&amp;" stands for, given without "&" and ";".
std::optional<Text> CharacterReferred(std::string_view name)
{
    if (const char16_t character = CharacterNamed(name))
        return Text(1, character);
    if (!name.starts_with('#'))
        return std::nullopt;
    name.remove_prefix(1);
    const bool isHex = name.starts_with('x') || name.starts_with('X');
    return CharacterOf(isHex ? name.substr(1) : name, isHex ? 16 : 10);
}

} // namespace

Text WithoutReferences(TextView value)
{
    Text plain;
    for (std::size_t at = 0; at < value.size(); ++at) {
        constexpr std::size_t longest = 12;
        const TextView reference = value.substr(at, longest);
        const std::size_t end = reference.front() == u'&' ? reference.find(u';') : TextView::npos;
        const auto character = end == TextView::npos
                                   ? std::nullopt
                                   : CharacterReferred(ToUtf8(reference.substr(1, end - 1)));
        plain += character.value_or(Text(1, value[at]));
        at += character ? end : 0;
    }
    return plain;
}

Text WithoutBackslashes(TextView quoted)
{
    Text plain;
    for (std::size_t at = 0; at < quoted.size(); ++at) {
        if (quoted[at] == u'\\' && ++at < quoted.size() && quoted[at] == u'u') {
            if (const auto character = CharacterOf(ToUtf8(quoted.substr(at + 1, 4)), 16)) {
                plain += *character;
                at += 4;
                continue;
            }
        }
        if (at < quoted.size())
            plain += quoted[at];
    }
    return plain;
}

} // namespace orvane
