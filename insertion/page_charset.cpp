#include "insertion/page_charset.h"

#include "insertion/page_markup.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane {

namespace {

constexpr std::size_t lookAt = 4096;
constexpr TextView blanks = u"\t\n\f\r ";

bool IsBlank(char16_t c)
{
    return blanks.find(c) != TextView::npos;
}

bool IsLetter(char16_t c)
{
    return c >= u'a' && c <= u'z';
}

/// The charset of a name in lower case; nothing for an empty one. A name that means nothing to a
/// browser counts as Other, which is right for whatever the browser takes instead.
std::optional<DeclaredCharset> CharsetNamed(TextView name)
{
    constexpr TextView utf8Names[] = {u"utf-8",    u"utf8",     u"unicode-1-1-utf-8", u"utf-16",
                                      u"utf-16le", u"utf-16be", u"x-unicode20utf8"};
    constexpr TextView windows1252Names[] = {
        u"windows-1252",    u"cp1252",        u"x-cp1252",   u"iso-8859-1", u"iso8859-1",
        u"iso88591",        u"iso_8859-1",    u"iso-ir-100", u"latin1",     u"l1",
        u"us-ascii",        u"ascii",         u"cp819",      u"ibm819",     u"csisolatin1",
        u"iso_8859-1:1987", u"ansi_x3.4-1968"};
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
std::optional<DeclaredCharset> CharsetInContent(TextView content)
{
    constexpr TextView word = u"charset";
    for (;;) {
        const std::size_t place = content.find(word);
        if (place == TextView::npos)
            return std::nullopt;
        content = WithoutBlanksInFront(content.substr(place + word.size()));
        if (content.starts_with(u'='))
            break;
    }
    content = WithoutBlanksInFront(content.substr(1));
    if (content.starts_with(u'"') || content.starts_with(u'\'')) {
        const std::size_t end = content.find(content.front(), 1);
        if (end == TextView::npos)
            return std::nullopt;
        return CharsetNamed(content.substr(1, end - 1));
    }
    return CharsetNamed(content.substr(0, content.find_first_of(u"\t\n\f\r ;")));
}

/// Walks over the start of a page as a browser does that looks for its encoding: it knows
/// comments, tags and quoted values, but neither scripts nor nesting.
class CharsetSearch
{
public:
    /// Expects the text in lower case.
    explicit CharsetSearch(TextView start) : m_rest(start) {}

    std::optional<DeclaredCharset> Run()
    {
        while (!m_rest.empty()) {
            const std::size_t name = m_rest.starts_with(u"</") ? 2 : 1;
            if (m_rest.starts_with(u"<!--")) {
                // The dashes that open a comment may be those that close it.
                SkipThrough(u"-->");
            } else if (m_rest.starts_with(u"<meta") && IsNameEnd(5)) {
                m_rest.remove_prefix(5);
                if (const auto charset = ReadMeta())
                    return charset;
            } else if (m_rest.front() == u'<' && name < m_rest.size() && IsLetter(m_rest[name])) {
                SkipTo(u"\t\n\f\r >");
                while (NextAttribute(m_rest)) {
                }
            } else if (m_rest.starts_with(u"<!") || m_rest.starts_with(u"</") ||
                       m_rest.starts_with(u"<?")) {
                SkipThrough(u">");
            } else {
                m_rest.remove_prefix(1);
            }
        }
        return std::nullopt;
    }

private:
    bool IsNameEnd(std::size_t at) const
    {
        return at < m_rest.size() && (IsBlank(m_rest[at]) || m_rest[at] == u'/');
    }

    TextView SkipTo(TextView stops)
    {
        const TextView passed = m_rest.substr(0, m_rest.find_first_of(stops));
        m_rest.remove_prefix(passed.size());
        return passed;
    }

    void SkipThrough(TextView end)
    {
        const std::size_t place = m_rest.find(end);
        m_rest.remove_prefix(place == TextView::npos ? m_rest.size() : place + end.size());
    }

    std::optional<DeclaredCharset> ReadMeta()
    {
        std::optional<TextView> httpEquiv, content, charset;
        while (const auto attribute = NextAttribute(m_rest)) {
            for (auto& [name, value] : {std::pair(TextView(u"http-equiv"), &httpEquiv),
                                        std::pair(TextView(u"content"), &content),
                                        std::pair(TextView(u"charset"), &charset)})
                if (attribute->Name == name && !*value)
                    *value = attribute->Value;
        }
        if (charset)
            return CharsetNamed(*charset);
        if (httpEquiv == u"content-type" && content)
            return CharsetInContent(*content);
        return std::nullopt;
    }

    TextView m_rest;
};

/// The encoding in a declaration such as <?xml version="1.0" encoding="utf-8"?>.
std::optional<DeclaredCharset> CharsetInXmlDeclaration(TextView start)
{
    constexpr TextView word = u"encoding";
    if (!start.starts_with(u"<?xml"))
        return std::nullopt;
    TextView rest = start.substr(0, start.find(u'>'));
    const std::size_t place = rest.find(word);
    if (place == TextView::npos)
        return std::nullopt;
    rest = WithoutBlanksInFront(rest.substr(place + word.size()));
    if (!rest.starts_with(u'='))
        return std::nullopt;
    rest = WithoutBlanksInFront(rest.substr(1));
    if (!rest.starts_with(u'"') && !rest.starts_with(u'\''))
        return std::nullopt;
    const std::size_t close = rest.find(rest.front(), 1);
    return close == TextView::npos ? std::nullopt : CharsetNamed(rest.substr(1, close - 1));
}

} // namespace

DeclaredCharset DeclaredCharsetOf(std::string_view page)
{
    const Text start = ToLower(FromBytes(page.substr(0, lookAt)));
    auto charset = CharsetSearch(start).Run();
    if (!charset)
        charset = CharsetInXmlDeclaration(start);
    return charset.value_or(DeclaredCharset::None);
}

} // namespace orvane
