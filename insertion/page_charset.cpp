#include "insertion/page_charset.h"

#include "core/text.h"
#include "insertion/page_markup.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t lookAt = 4096;
constexpr std::string_view blanks = "\t\n\f\r ";

bool IsBlank(char c)
{
    return blanks.find(c) != std::string_view::npos;
}

bool IsLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

/// The charset of a name in lower case; nothing for an empty one. A name that means nothing to a
/// browser counts as Other, which is right for whatever the browser takes instead.
std::optional<DeclaredCharset> CharsetNamed(std::string_view name)
{
    constexpr std::string_view utf8Names[] = {"utf-8",    "utf8",     "unicode-1-1-utf-8", "utf-16",
                                              "utf-16le", "utf-16be", "x-unicode20utf8"};
    constexpr std::string_view windows1252Names[] = {
        "windows-1252",    "cp1252",        "x-cp1252",   "iso-8859-1", "iso8859-1",
        "iso88591",        "iso_8859-1",    "iso-ir-100", "latin1",     "l1",
        "us-ascii",        "ascii",         "cp819",      "ibm819",     "csisolatin1",
        "iso_8859-1:1987", "ansi_x3.4-1968"};
    name = WithoutBlanksInFront(name);
    name = name.substr(0, name.find_last_not_of(blanks) + 1);
    if (name.empty())
        return std::nullopt;
    // A declaration of UTF-16 that can be read byte by byte is wrong; browsers take it for UTF-8.
    if (std::find(std::begin(utf8Names), std::end(utf8Names), name) != std::end(utf8Names))
        return DeclaredCharset::Utf8;
    if (std::find(std::begin(windows1252Names), std::end(windows1252Names), name) !=
        std::end(windows1252Names))
        return DeclaredCharset::Windows1252;
    return DeclaredCharset::Other;
}

/// The charset in a value such as "text/html; charset=utf-8".
std::optional<DeclaredCharset> CharsetInContent(std::string_view content)
{
    constexpr std::string_view word = "charset";
    for (;;) {
        const std::size_t place = content.find(word);
        if (place == std::string_view::npos)
            return std::nullopt;
        content = WithoutBlanksInFront(content.substr(place + word.size()));
        if (content.starts_with('='))
            break;
    }
    content = WithoutBlanksInFront(content.substr(1));
    if (content.starts_with('"') || content.starts_with('\'')) {
        const std::size_t end = content.find(content.front(), 1);
        if (end == std::string_view::npos)
            return std::nullopt;
        return CharsetNamed(content.substr(1, end - 1));
    }
    return CharsetNamed(content.substr(0, content.find_first_of("\t\n\f\r ;")));
}

/// Walks over the start of a page as a browser does that looks for its encoding: it knows
/// comments, tags and quoted values, but neither scripts nor nesting.
class CharsetSearch
{
public:
    /// Expects the text in lower case.
    explicit CharsetSearch(std::string_view start) : m_rest(start) {}

    std::optional<DeclaredCharset> Run()
    {
        while (!m_rest.empty()) {
            const std::size_t name = m_rest.starts_with("</") ? 2 : 1;
            if (m_rest.starts_with("<!--")) {
                // The dashes that open a comment may be those that close it.
                SkipThrough("-->");
            } else if (m_rest.starts_with("<meta") && IsNameEnd(5)) {
                m_rest.remove_prefix(5);
                if (const auto charset = ReadMeta())
                    return charset;
            } else if (m_rest.front() == '<' && name < m_rest.size() && IsLetter(m_rest[name])) {
                SkipTo("\t\n\f\r >");
                while (NextAttribute(m_rest)) {
                }
            } else if (m_rest.starts_with("<!") || m_rest.starts_with("</") ||
                       m_rest.starts_with("<?")) {
                SkipThrough(">");
            } else {
                m_rest.remove_prefix(std::min(m_rest.find('<', 1), m_rest.size()));
            }
        }
        return std::nullopt;
    }

private:
    bool IsNameEnd(std::size_t at) const
    {
        return at < m_rest.size() && (IsBlank(m_rest[at]) || m_rest[at] == '/');
    }

    std::string_view SkipTo(std::string_view stops)
    {
        const std::string_view passed = m_rest.substr(0, m_rest.find_first_of(stops));
        m_rest.remove_prefix(passed.size());
        return passed;
    }

    void SkipThrough(std::string_view end)
    {
        const std::size_t place = m_rest.find(end);
        m_rest.remove_prefix(place == std::string_view::npos ? m_rest.size() : place + end.size());
    }

    std::optional<DeclaredCharset> ReadMeta()
    {
        std::optional<std::string_view> httpEquiv, content, charset;
        while (const auto attribute = NextAttribute(m_rest)) {
            for (auto& [name, value] : {std::pair(std::string_view("http-equiv"), &httpEquiv),
                                        std::pair(std::string_view("content"), &content),
                                        std::pair(std::string_view("charset"), &charset)})
                if (attribute->Name == name && !*value)
                    *value = attribute->Value;
        }
        if (charset)
            return CharsetNamed(*charset);
        if (httpEquiv == "content-type" && content)
            return CharsetInContent(*content);
        return std::nullopt;
    }

    std::string_view m_rest;
};

/// The encoding in a declaration such as <?xml version="1.0" encoding="utf-8"?>.
std::optional<DeclaredCharset> CharsetInXmlDeclaration(std::string_view start)
{
    constexpr std::string_view word = "encoding";
    if (!start.starts_with("<?xml"))
        return std::nullopt;
    std::string_view rest = start.substr(0, start.find('>'));
    const std::size_t place = rest.find(word);
    if (place == std::string_view::npos)
        return std::nullopt;
    rest = WithoutBlanksInFront(rest.substr(place + word.size()));
    if (!rest.starts_with('='))
        return std::nullopt;
    rest = WithoutBlanksInFront(rest.substr(1));
    if (!rest.starts_with('"') && !rest.starts_with('\''))
        return std::nullopt;
    const std::size_t close = rest.find(rest.front(), 1);
    return close == std::string_view::npos ? std::nullopt : CharsetNamed(rest.substr(1, close - 1));
}

} // namespace

DeclaredCharset DeclaredCharsetOf(std::string_view page)
{
    page = page.substr(0, lookAt);
    // Most pages that declare none do not even have the word and need no closer look.
    if (FindIgnoringCase(page, "charset") == 0 && !page.starts_with("<?"))
        return DeclaredCharset::None;
    std::string start(page);
    std::transform(start.begin(), start.end(), start.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    auto charset = CharsetSearch(start).Run();
    if (!charset)
        charset = CharsetInXmlDeclaration(start);
    return charset.value_or(DeclaredCharset::None);
}

} // namespace orvane
