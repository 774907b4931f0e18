#include "core/draft.h"

namespace orvane {

namespace {

constexpr TextView between = u": ";

Text Unescaped(TextView value)
{
    Text text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text.push_back(value[i]);
            continue;
        }
        const char16_t letter = value[++i];
        text.push_back(letter == u'r' ? u'\r' : letter == u'n' ? u'\n' : letter);
    }
    return text;
}

} // namespace

Text DraftLine(std::string_view name, TextView value)
{
    Text escaped;
    for (const char16_t character : value) {
        if (character == u'\r')
            escaped += u"\\r";
        else if (character == u'\n')
            escaped += u"\\n";
        else if (character == u'\\')
            escaped += u"\\\\";
        else
            escaped.push_back(character);
    }
    return Join({FromBytes(name), between, escaped, u"\n"});
}

DraftFields ReadDraftFields(TextView draft)
{
    DraftFields fields;
    while (!draft.empty()) {
        const std::size_t end = draft.find(u'\n');
        const TextView line = draft.substr(0, end);
        draft = end == TextView::npos ? TextView() : draft.substr(end + 1);
        if (const std::size_t place = line.find(between); place != TextView::npos)
            fields[ToUtf8(line.substr(0, place))].push_back(
                Unescaped(line.substr(place + between.size())));
    }
    return fields;
}

} // namespace orvane
