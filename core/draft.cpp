#include "core/draft.h"

#include "core/escapes.h"

#include <algorithm>
#include <iterator>

namespace orvane {

namespace {

constexpr TextView between = u": ";

/// The names of a row's fields that are kept apart, the first of the list box; one name alone when
/// they are kept together.
std::vector<ControlName> NamesOf(const FieldName& name)
{
    std::vector<ControlName> names{name.Name};
    std::ranges::copy_if(name.Others, std::back_inserter(names),
                         [](ControlName other) { return !other.empty(); });
    return names;
}

} // namespace

Text DraftLine(std::string_view name, TextView value)
{
    return Join({FromBytes(name), between, Escaped(value), u"\n"});
}

Text DraftLines(std::string_view name, const FieldTexts& texts)
{
    Text lines;
    for (const Text& text : texts)
        lines += DraftLine(name, text);
    return lines;
}

Text DraftLines(const FieldName& name, const RowTexts& rows)
{
    const std::vector<ControlName> names = NamesOf(name);
    Text lines;
    if (names.size() == 1)
        for (const FieldTexts& row : rows)
            lines += DraftLines(name.Name, row);
    else
        for (std::size_t field = 0; field < names.size(); ++field)
            for (const FieldTexts& row : rows)
                lines += DraftLine(names[field], row.at(field));
    return lines;
}

std::optional<RowTexts> RowsIn(const DraftFields& draft, const FieldName& name,
                               const FieldTexts& fresh)
{
    const std::vector<ControlName> names = NamesOf(name);
    // Under one name alone, the fields of a row follow each other.
    const std::size_t inRow = names.size() == 1 ? fresh.size() : 1;
    std::optional<RowTexts> rows;
    for (std::size_t field = 0; field < names.size(); ++field) {
        const auto found = draft.find(names[field]);
        if (found == draft.end())
            continue;
        const std::size_t count = found->second.size() / inRow;
        if (!rows)
            rows.emplace();
        if (rows->size() < count)
            rows->resize(count, fresh);
        for (std::size_t i = 0; i < count * inRow; ++i)
            rows->at(i / inRow).at(field + i % inRow) = found->second[i];
    }
    return rows;
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
