#include "insertion/page_encoding.h"

#include "insertion/page_charset.h"
#include "insertion/script_spans.h"

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

std::optional<char> Windows1252Byte(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(unit);
    const auto found = std::find(upperControls.begin(), upperControls.end(), unit);
    if (found == upperControls.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (found - upperControls.begin()));
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

/// Knows which places of page code lie inside a SCRIPT element.
class ScriptTracker
{
public:
    explicit ScriptTracker(TextView code) : m_text(code) {}

    /// Expects places in rising order.
    bool IsInScript(std::size_t at)
    {
        if (m_code.size() != m_text.size())
            ReadCode();
        while (at >= m_script.End && m_script.End < m_code.size())
            m_script = NextScript(m_code, m_script.End);
        return at >= m_script.Begin && at < m_script.End;
    }

private:
    /// Tags are of ASCII characters alone: any other one becomes a byte that is in none.
    void ReadCode()
    {
        m_code.resize(m_text.size());
        std::transform(m_text.begin(), m_text.end(), m_code.begin(), [](char16_t unit) {
            return unit < 0x80 ? static_cast<char>(unit) : '\x80';
        });
    }

    TextView m_text;
    std::string m_code; ///< made once somebody asks, which most code needs not
    CodeSpan m_script;
};

/// Writes the characters that the encoding has as its bytes and escapes the others: inside
/// `scripts` for the script, elsewhere for the markup.
std::string Encode(TextView code, PageEncoding encoding, ScriptTracker scripts)
{
    if (encoding == PageEncoding::Utf8 || FindAboveAscii(code, 0) == code.size())
        return ToUtf8(code);
    std::string bytes;
    bytes.reserve(code.size());
    for (std::size_t i = 0; i < code.size(); ++i) {
        if (code[i] < 0x80) {
            bytes.push_back(static_cast<char>(code[i]));
            continue;
        }
        const auto byte = Windows1252Byte(code[i]);
        if (byte && encoding == PageEncoding::Windows1252) {
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

/// Whether the byte is half of a character, left behind by an earlier insertion: it writes the byte
/// behind a tag twice, and puts a line end behind the first.
bool IsDoubledByte(std::string_view page, std::size_t at)
{
    return at > 0 && page[at] >= '\xC2' && page[at] <= '\xF4' &&
           (page[at - 1] == '>' || page[at - 1] == '\n') && page.substr(at + 1, 2) == "\r\n";
}

/// Whether the page holds characters above 127 and every such character is well-formed UTF-8.
bool IsWellFormedUtf8(std::string_view page)
{
    bool holdsAny = false;
    for (std::size_t at = FindAboveAscii(page, 0); at < page.size();
         at = FindAboveAscii(page, at)) {
        if (IsDoubledByte(page, at)) {
            ++at;
            continue;
        }
        const std::size_t length = Utf8Length(page.substr(at));
        if (length == 0)
            return false;
        holdsAny = true;
        at += length;
    }
    return holdsAny;
}

} // namespace

PageEncoding EncodingOf(std::string_view page)
{
    if (page.starts_with("\xEF\xBB\xBF"))
        return PageEncoding::Utf8;
    if (page.starts_with("\xFF\xFE") || page.starts_with("\xFE\xFF"))
        return PageEncoding::AsciiOnly;
    switch (DeclaredCharsetOf(page)) {
    case DeclaredCharset::Utf8:
        return PageEncoding::Utf8;
    case DeclaredCharset::Windows1252:
        return PageEncoding::Windows1252;
    case DeclaredCharset::Other:
        return PageEncoding::AsciiOnly;
    case DeclaredCharset::None:
        break;
    }
    return IsWellFormedUtf8(page) ? PageEncoding::Utf8 : PageEncoding::Windows1252;
}

std::string EncodeForPage(TextView code, PageEncoding encoding)
{
    return Encode(code, encoding, ScriptTracker(code));
}

std::string EncodeForAttribute(TextView value, PageEncoding encoding)
{
    return Encode(value, encoding, ScriptTracker({}));
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
