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
        const TextView line = TakeUntil(draft, u'\n');
        if (const std::size_t place = line.find(between); place != TextView::npos)
            fields[ToUtf8(line.substr(0, place))].push_back(
                Unescaped(line.substr(place + between.size())));
    }
    return fields;
}

} // namespace orvane
