#include "insertion/page_encoding.h"
#include "insertion/script_spans.h"
#include "tests/fuzz/fuzz_input.h"

namespace orvane::testing {

namespace {

/// The characters of the bytes 0x80 to 0x9F, as the encoding's own table lists them.
constexpr char16_t upperBytes[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char16_t CharacterOf(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? upperBytes[byte - 0x80] : byte;
}

/// Reads encoded bytes beside the text that they came from.
class SideBySide
{
public:
    SideBySide(TextView text, std::string_view bytes) : m_text(text), m_bytes(bytes) {}

    /// Every character stands as its byte if the encoding has it, else as one of the two escapes.
    void CheckAll(PageEncoding encoding, bool mayHoldScripts)
    {
        while (!m_text.empty()) {
            Require(!m_bytes.empty(), "no character is lost");
            const auto byte = static_cast<unsigned char>(m_bytes[0]);
            if (CharacterOf(byte) == m_text[0] &&
                (byte < 0x80 || encoding == PageEncoding::Windows1252)) {
                m_text.remove_prefix(1);
                m_bytes.remove_prefix(1);
                continue;
            }
            Require(IsLacking(m_text[0], encoding), "what the encoding has is not escaped");
            if (mayHoldScripts && m_bytes.starts_with("\\u"))
                CheckScriptEscape();
            else
                CheckReference();
        }
        Require(m_bytes.empty(), "nothing is added");
    }

private:
    static bool IsLacking(char16_t unit, PageEncoding encoding)
    {
        for (int byte = 0; byte < (encoding == PageEncoding::Windows1252 ? 256 : 128); ++byte)
            if (CharacterOf(static_cast<unsigned char>(byte)) == unit)
                return false;
        return true;
    }

    void CheckScriptEscape()
    {
        const std::string digits(m_bytes.substr(2, 4));
        Require(digits.size() == 4, "a script escape has four digits");
        Require(std::stoul(digits, nullptr, 16) == m_text[0], "a script escape names its unit");
        m_text.remove_prefix(1);
        m_bytes.remove_prefix(6);
    }

    void CheckReference()
    {
        const std::size_t end = m_bytes.find(';');
        Require(m_bytes.starts_with("&#") && end != std::string_view::npos && end > 2,
                "a lacking character becomes a reference");
        const auto point =
            static_cast<char32_t>(std::stoul(std::string(m_bytes.substr(2, end - 2))));
        const Text unit =
            point < 0x10000 ? Text(1, static_cast<char16_t>(point)) : FromUtf8(Utf8Of(point));
        Require(m_text.starts_with(unit), "a reference names its character");
        m_text.remove_prefix(unit.size());
        m_bytes.remove_prefix(end + 1);
    }

    static std::string Utf8Of(char32_t point)
    {
        const auto part = [&](int shift, unsigned mark, unsigned mask) {
            return static_cast<char>(mark | ((point >> shift) & mask));
        };
        return {part(18, 0xF0, 0x07), part(12, 0x80, 0x3F), part(6, 0x80, 0x3F),
                part(0, 0x80, 0x3F)};
    }

    TextView m_text;
    std::string_view m_bytes;
};

void CheckScripts(std::string_view code)
{
    for (std::size_t at = 0; at < code.size();) {
        const CodeSpan script = NextScript(code, at);
        Require(script.Begin <= script.End && script.End <= code.size(), "a script lies inside");
        Require(script.End > at, "the search for scripts gets on");
        if (script.Begin < code.size()) {
            Require(code[script.Begin - 1] == '>', "a script begins behind its tag");
            Require(script.End == code.size() ||
                        StartsWithIgnoringCase(code.substr(script.End), "</script"),
                    "a script ends at its close tag");
        }
        at = script.End;
    }
}

void CheckCode(TextView code, bool isWellFormed)
{
    CheckScripts(ToUtf8(code));
    for (const PageEncoding encoding : {PageEncoding::Windows1252, PageEncoding::AsciiOnly}) {
        SideBySide(code, EncodeForAttribute(code, encoding)).CheckAll(encoding, false);
        const bool hasScript = FindIgnoringCase(code, u"<script") != 0;
        SideBySide(code, EncodeForPage(code, encoding)).CheckAll(encoding, hasScript);
    }
    if (isWellFormed)
        Require(FromUtf8(EncodeForPage(code, PageEncoding::Utf8)) == code, "UTF-8 decodes back");
}

/// What a page is taken for does not hang on what no browser would look at.
void CheckPage(const std::string& page)
{
    const PageEncoding encoding = EncodingOf(page);
    Require(EncodingOf("\xEF\xBB\xBF" + page) == PageEncoding::Utf8, "a mark decides");
    Require(EncodingOf("<meta charset=utf-8>" + page) == PageEncoding::Utf8,
            "the first declaration decides");
    const bool startsPlainly = page.empty() || static_cast<signed char>(page[0]) > 0;
    if (page.size() < 4000 && startsPlainly && !page.starts_with("<?"))
        Require(EncodingOf("<!-- <meta charset=utf-8> -->" + page) == encoding,
                "a comment decides nothing");
}

void Check(FuzzInput input)
{
    const bool isWide = input.Choice(0);
    const std::string_view bytes = input.TakeRest();
    CheckPage(std::string(bytes));
    if (!isWide)
        return CheckCode(FromUtf8(bytes), true);
    Text units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        units.push_back(static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                              (static_cast<unsigned char>(bytes[i + 1]) << 8)));
    CheckCode(units, false);
}

} // namespace

} // namespace orvane::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    orvane::testing::Check(orvane::testing::FuzzInput(bytes, size));
    return 0;
}
