#include "delivery/page_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace orvane {

namespace {

/// The characters of the bytes 0x80 to 0x9F; bytes without one stand for themselves.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr TextView scriptOpener = u"<script";
constexpr TextView scriptCloser = u"</script";

std::optional<char> Windows1252Byte(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(unit);
    const auto found = std::find(upperControls.begin(), upperControls.end(), unit);
    if (found == upperControls.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (found - upperControls.begin()));
}

bool IsHighSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

std::string ScriptEscape(char16_t unit)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string escape = "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        escape.push_back(digits[(unit >> shift) & 0xF]);
    return escape;
}

std::string MarkupEscape(std::uint32_t point)
{
    return "&#" + std::to_string(point) + ";";
}

/// Follows page code and knows whether a place lies inside a SCRIPT element.
class ScriptTracker
{
public:
    explicit ScriptTracker(TextView code) : m_code(code) {}

    /// Expects places in rising order.
    bool IsInScript(std::size_t at)
    {
        for (; m_at <= at; ++m_at) {
            if (m_code[m_at] != u'<')
                continue;
            const TextView sought = m_isInScript ? scriptCloser : scriptOpener;
            if (StartsWithIgnoringCase(m_code.substr(m_at), sought))
                m_isInScript = !m_isInScript;
        }
        return m_isInScript;
    }

private:
    TextView m_code;
    std::size_t m_at = 0;
    bool m_isInScript = false;
};

std::string EncodeWindows1252(TextView code)
{
    ScriptTracker scripts(code);
    std::string bytes;
    bytes.reserve(code.size());
    for (std::size_t i = 0; i < code.size(); ++i) {
        if (const auto byte = Windows1252Byte(code[i])) {
            bytes.push_back(*byte);
        } else if (scripts.IsInScript(i)) {
            bytes += ScriptEscape(code[i]);
        } else if (IsHighSurrogate(code[i]) && i + 1 < code.size() && IsLowSurrogate(code[i + 1])) {
            bytes += MarkupEscape(0x10000u + ((code[i] - 0xD800u) << 10) + (code[i + 1] - 0xDC00u));
            ++i;
        } else {
            bytes += MarkupEscape(code[i]);
        }
    }
    return bytes;
}

/// Whether the bytes hold a character above 127 and every such character is well-formed UTF-8.
bool IsWellFormedUtf8(std::string_view bytes)
{
    const bool isAscii = std::none_of(bytes.begin(), bytes.end(),
                                      [](char byte) { return static_cast<signed char>(byte) < 0; });
    return !isAscii && ToUtf8(FromUtf8(bytes)) == bytes;
}

/// The declared charset, lower-cased, or nothing; what a comment or script says counts as little as
/// it does for a browser, which reads the first declaration.
std::string DeclaredCharset(std::string_view page)
{
    constexpr std::size_t lookAt = 4096;
    const Text start = ToLower(FromBytes(page.substr(0, lookAt)));
    const std::size_t place = Find(start, u"charset");
    if (place == 0)
        return {};
    TextView rest = Mid(start, place + 7);
    rest.remove_prefix(std::min(rest.find_first_not_of(u" \t\r\n"), rest.size()));
    if (rest.empty() || rest.front() != u'=')
        return {};
    rest.remove_prefix(1);
    rest.remove_prefix(std::min(rest.find_first_not_of(u" \t\r\n\"'"), rest.size()));
    return ToBytes(rest.substr(0, rest.find_first_of(u" \t\r\n\"'>;/")));
}

} // namespace

PageEncoding EncodingOf(std::string_view page)
{
    if (page.starts_with("\xEF\xBB\xBF"))
        return PageEncoding::Utf8;
    const std::string charset = DeclaredCharset(page);
    if (charset == "utf-8" || charset == "utf8")
        return PageEncoding::Utf8;
    if (!charset.empty())
        return PageEncoding::Windows1252;
    return IsWellFormedUtf8(page) ? PageEncoding::Utf8 : PageEncoding::Windows1252;
}

std::string EncodeForPage(TextView code, PageEncoding encoding)
{
    return encoding == PageEncoding::Utf8 ? ToUtf8(code) : EncodeWindows1252(code);
}

std::optional<std::string> Windows1252Bytes(TextView text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        const auto byte = Windows1252Byte(unit);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

Text FromWindows1252(std::string_view bytes)
{
    Text text = FromBytes(bytes);
    for (char16_t& unit : text)
        if (unit >= 0x80 && unit <= 0x9F)
            unit = upperControls[unit - 0x80u];
    return text;
}

} // namespace orvane
