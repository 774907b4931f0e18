#include "tests/fuzz/insertion_oracle.h"

#include <cstdint>

namespace orvane::testing {

namespace {

using Ending = ExpectedInsertion::Ending;
using Place = InsertionWork::Place;

std::string Lowered(std::string bytes)
{
    for (char& byte : bytes)
        if (byte >= 'A' && byte <= 'Z')
            byte = static_cast<char>(byte + 32);
    return bytes;
}

/// A place counted from 1 that must fit into 16 bits; 0 for none.
std::int64_t PlaceIn(const std::string& text, const std::string& sought, std::int64_t from)
{
    const std::size_t at = Lowered(text).find(Lowered(sought), static_cast<std::size_t>(from - 1));
    return at == std::string::npos ? 0 : static_cast<std::int64_t>(at) + 1;
}

std::int64_t Integer16(std::int64_t number)
{
    if (number > 32767)
        throw Ending::Overflow;
    return number;
}

std::string Cut(const std::string& text, std::int64_t from, std::int64_t length)
{
    if (length < 0)
        throw Ending::InvalidCall;
    return text.substr(static_cast<std::size_t>(from - 1), static_cast<std::size_t>(length));
}

bool Has(const std::string& text, const std::string& begin, const std::string& end)
{
    return PlaceIn(text, begin, 1) != 0 && (end.empty() || PlaceIn(text, end, 1) != 0);
}

std::string Replaced(const std::string& text, const std::string& put, const std::string& begin,
                     const std::string& end)
{
    const std::int64_t start = Integer16(PlaceIn(text, begin, 1));
    const std::int64_t found = PlaceIn(text, end, start);
    const std::int64_t stop = Integer16(found + static_cast<std::int64_t>(end.size()));
    if (found == 0)
        throw Ending::InvalidCall;
    const std::string old = Cut(text, start, stop - start);
    std::string result = text;
    for (std::size_t at = result.find(old); at != std::string::npos;
         at = result.find(old, at + put.size()))
        result.replace(at, old.size(), put);
    return result;
}

/// Both cuts begin right behind the character at position `position`.
void SetCut(ExpectedInsertion& expected, std::int64_t position, std::int64_t length)
{
    expected.From = static_cast<std::size_t>(position);
    expected.To = static_cast<std::size_t>(position + length);
}

void ExpectElement(ExpectedInsertion& expected, const std::string& page, const InsertionWork& work)
{
    const std::string name = work.Where == Place::Head ? "head" : "body";
    const std::int64_t open = Integer16(PlaceIn(page, "<" + name, 1));
    if (open == 0)
        throw Ending::Manual;
    const std::int64_t tagEnd = Integer16(PlaceIn(page, ">", open));
    const std::int64_t close = Integer16(PlaceIn(page, "</" + name, open));
    const std::int64_t behind = Integer16(tagEnd + 1);
    const std::string inner = Cut(page, behind, close - behind);
    // The character behind the tag comes before what is put in, and again behind it.
    const std::string doubled = page.substr(static_cast<std::size_t>(tagEnd), 1);
    if (!work.Searches || !Has(inner, work.Begin, work.End)) {
        SetCut(expected, tagEnd, 0);
        expected.Put = doubled + "\r\n" + work.Code + "\r\n";
        return;
    }
    expected.Asked = true;
    if (!work.Yes)
        throw Ending::Manual;
    SetCut(expected, tagEnd, close - behind);
    expected.Put = doubled + "\r\n" + Replaced(inner, work.Code, work.Begin, work.End) + "\r\n";
}

void ExpectAttribute(ExpectedInsertion& expected, const std::string& page,
                     const InsertionWork& work)
{
    const std::int64_t open = Integer16(PlaceIn(page, "<body", 1));
    if (open == 0)
        return;
    const std::int64_t tagEnd = Integer16(PlaceIn(page, ">", open));
    const std::string tag = Cut(page, open, tagEnd - open);
    const std::string word = work.Where == Place::OnLoad ? "onload" : "onunload";
    if (!Has(tag, work.Func, "")) {
        SetCut(expected, tagEnd - 1, 0);
        expected.Put = " " + word + "=\"" + work.Func + work.Args + "\" ";
        return;
    }
    expected.Asked = true;
    if (!work.Yes)
        return;
    expected.Put = Replaced(tag, work.Func + work.Args, work.Func, ")");
    SetCut(expected, open - 1, tagEnd - open);
}

} // namespace

ExpectedInsertion ExpectInsertion(const std::string& page, const InsertionWork& work)
{
    ExpectedInsertion expected;
    try {
        if (work.Where == Place::Head || work.Where == Place::Body)
            ExpectElement(expected, page, work);
        else
            ExpectAttribute(expected, page, work);
    } catch (Ending ending) {
        expected.How = ending;
    }
    return expected;
}

std::string Spliced(const std::string& page, const ExpectedInsertion& expected)
{
    return page.substr(0, expected.From) + expected.Put + page.substr(expected.To);
}

} // namespace orvane::testing
