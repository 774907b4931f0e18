#include "core/draft.h"

#include "core/escapes.h"

namespace orvane {

namespace {

constexpr TextView between = u": ";

} // namespace

Text DraftLine(std::string_view name, TextView value)
{
    return Join({FromBytes(name), between, Escaped(value), u"\n"});
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
