#include "core/template.h"

#include <bitset>
#include <string>

namespace orvane {

namespace {

constexpr std::size_t mostValues = 64;

/// Takes the next piece, which is led by its length, off `pieces`.
TextView TakePiece(TextView& pieces)
{
    const TextView piece = pieces.substr(1, pieces.front());
    pieces.remove_prefix(piece.size() + 1);
    return piece;
}

std::size_t IndexOf(TextView name, std::initializer_list<TemplateValue> values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        if (values.begin()[i].first == name)
            return i;
    throw std::logic_error("Fill: no value for the mark " + ToUtf8(name));
}

/// The length of the filled text; checks on the way that marks and values match.
std::size_t MeasureFilled(TextView pieces, std::initializer_list<TemplateValue> values)
{
    if (values.size() > mostValues)
        throw std::logic_error("Fill: too many values");
    std::bitset<mostValues> used;
    std::size_t size = 0;
    while (!pieces.empty()) {
        size += TakePiece(pieces).size();
        if (pieces.empty())
            break;
        const std::size_t index = IndexOf(TakePiece(pieces), values);
        size += values.begin()[index].second.size();
        used.set(index);
    }
    for (std::size_t i = 0; i < values.size(); ++i)
        if (!used.test(i))
            throw std::logic_error("Fill: no mark for the value " +
                                   ToUtf8(values.begin()[i].first));
    return size;
}

} // namespace

Text Fill(TemplateView page, std::initializer_list<TemplateValue> values)
{
    Text filled;
    filled.reserve(MeasureFilled(page.Pieces, values));
    TextView pieces = page.Pieces;
    while (!pieces.empty()) {
        filled.append(TakePiece(pieces));
        if (!pieces.empty())
            filled.append(values.begin()[IndexOf(TakePiece(pieces), values)].second);
    }
    return filled;
}

} // namespace orvane
