#include "core/escapes.h"

namespace orvane {

Text Escaped(TextView text, TextView signs)
{
    Text escaped;
    for (const char16_t c : text) {
        if (c == u'\r')
            escaped += u"\\r";
        else if (c == u'\n')
            escaped += u"\\n";
        else if (c == u'\\' || signs.find(c) != TextView::npos)
            escaped.append({u'\\', c});
        else
            escaped.push_back(c);
    }
    return escaped;
}

Text Unescaped(TextView text)
{
    Text plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\' || i + 1 == text.size()) {
            plain.push_back(text[i]);
            continue;
        }
        const char16_t c = text[++i];
        plain.push_back(c == u'r' ? u'\r' : c == u'n' ? u'\n' : c);
    }
    return plain;
}

} // namespace orvane
