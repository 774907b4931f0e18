#include "core/template.h"

#include <string>

namespace orvane {

namespace {

constexpr std::size_t mostMarks = 64;

/// The values in the order in which their marks first stand in a template.
struct OrderedValues
{
    std::array<const TextView*, mostMarks> Values;
    std::size_t FilledSize; ///< of the literals and of all values as often as they are used
};

/// The value of a mark, looked for from the place where a caller most likely wrote it.
const TextView& ValueOf(TextView name, std::initializer_list<TemplateValue> values,
                        std::size_t likely)
{
    const TemplateValue* first = values.begin();
    if (likely < values.size() && first[likely].first == name)
        return first[likely].second;
    for (const TemplateValue& value : values)
        if (value.first == name)
            return value.second;
    throw std::logic_error("Fill: no value for the mark " + ToUtf8(name));
}

OrderedValues Order(const TemplateView& page, std::initializer_list<TemplateValue> values)
{
    OrderedValues ordered;
    ordered.FilledSize = page.LiteralSize;
    std::size_t marks = 0;
    for (std::size_t at = 0; at < page.Names.size(); at += page.Names[at] + 2u, ++marks) {
        if (marks == mostMarks)
            throw std::logic_error("Fill: too many marks");
        const TextView& value =
            ValueOf({page.Names.data() + at + 2, page.Names[at]}, values, marks);
        ordered.Values[marks] = &value;
        ordered.FilledSize += value.size() * page.Names[at + 1];
    }
    // Every mark has found its value, so one too many has no mark or stands twice.
    if (marks != values.size())
        throw std::logic_error("Fill: a value without a mark");
    return ordered;
}

} // namespace

Text Fill(TemplateView page, std::initializer_list<TemplateValue> values)
{
    const OrderedValues ordered = Order(page, values);
    Text filled;
    filled.reserve(ordered.FilledSize);
    const TextView pieces = page.Pieces;
    for (std::size_t at = 0; at < pieces.size();) {
        const std::size_t length = pieces[at++];
        filled.append(pieces.data() + at, length);
        at += length;
        if (at < pieces.size())
            filled.append(*ordered.Values[pieces[at++]]);
    }
    return filled;
}

} // namespace orvane
