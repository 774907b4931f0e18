#include "services/block_fields.h"

#include "core/numbers.h"
#include "core/percents.h"
#include "core/utf8.h"
#include "services/block_pictures.h"
#include "services/web_address.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace orvane {

namespace {

/// Stands for a colour that is as on the page, where that is not the default.
constexpr TextView noColor = u"-";
constexpr TextView no = u"no";

struct NumberAtStart
{
    double Value;
    bool IsAll; ///< nothing stands behind it
};

std::optional<NumberAtStart> ReadNumber(TextView text)
{
    std::string digits = ToUtf8(OneLine(text));
    if (digits.starts_with('+'))
        digits.erase(0, 1);
    const std::size_t first = digits.starts_with('-') ? 1 : 0;
    if (first == digits.size() ||
        std::string_view("0123456789.").find(digits[first]) == std::string_view::npos)
        return std::nullopt;
    double number = 0;
    const char* end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number);
    if (read.ec != std::errc())
        return std::nullopt;
    return NumberAtStart{number, read.ptr == end};
}

bool IsCapital(char c)
{
    return c >= 'A' && c <= 'Z';
}

} // namespace

Text AttributeName(ControlName control)
{
    const auto begin = std::ranges::find_if(control, IsCapital);
    Text name = u"data";
    for (const char c : std::string_view(begin, control.end())) {
        if (IsCapital(c))
            name += u'-';
        name += ToLower(static_cast<char16_t>(c));
    }
    return name;
}

Text MendedNumber(TextView text, const NumberBounds& bounds, TextView fresh)
{
    const auto number = ReadNumber(text);
    return number ? NumberToText(std::clamp(number->Value, bounds.Least, bounds.Most))
                  : Text(fresh);
}

std::optional<Complaint> CheckNumber(const FieldName& field, TextView text)
{
    const auto number = ReadNumber(text);
    const bool isFit = number && number->IsAll && number->Value >= field.Bounds->Least &&
                       number->Value <= field.Bounds->Most;
    if (isFit || OneLine(text).empty())
        return std::nullopt;
    return Complaint{Join({u"Please enter a number from ", NumberToText(field.Bounds->Least),
                           u" to ", NumberToText(field.Bounds->Most), u"."}),
                     field.Name};
}

std::optional<Complaint> Check(const BlockRow& row)
{
    if (TidyLines(row.Words).empty())
        return Complaint{u"Please enter the text of the message.", "txtWords"};
    return std::nullopt;
}

void Tidy(BlockRow& row)
{
    row = {TidyLines(row.Words), MendedLink(row.Link)};
}

std::optional<Complaint> CheckRows(const BlockRows& rows, ControlName control)
{
    if (std::ranges::all_of(rows, [](const auto& row) { return Check(row).has_value(); }))
        return Complaint{u"Please add a message to the list.", control};
    return std::nullopt;
}

std::optional<Complaint> CheckPictures(const BlockPictures& pictures, ControlName control,
                                       std::size_t most)
{
    // A picture without an address goes when the wizard ends.
    if (std::ranges::all_of(pictures, [](const auto& one) { return OneLine(one.Address).empty(); }))
        return Complaint{u"Please add a picture to the list.", control};
    if (pictures.size() > most)
        return Complaint{
            Join({u"Please add ", NumberToText(most), u" pictures at most to the list."}), control};
    for (const BlockPicture& picture : pictures)
        for (const BlockPicture& other : pictures)
            if (picture.Address == other.Address && picture.Source != other.Source)
                return Complaint{Join({u"Two different pictures of the list are called \"",
                                       WithoutPercents(picture.Address),
                                       u"\".  Please give one of the files another name."}),
                                 control};
    return std::nullopt;
}

bool IsStyleColor(TextView color)
{
    int open = 0;
    for (const char16_t c : color) {
        const bool isLetterOrDigit =
            (c >= u'0' && c <= u'9') || (ToLower(c) >= u'a' && ToLower(c) <= u'z');
        if (!isLetterOrDigit && TextView(u"#%()+,-./ ").find(c) == TextView::npos)
            return false;
        open += c == u'(' ? 1 : c == u')' ? -1 : 0;
        if (open < 0)
            return false;
    }
    return open == 0;
}

Text MendedLink(TextView link)
{
    return WithScheme(OneLine(link));
}

void MendField(const FieldName& field, Text& value, const Text& fresh)
{
    if (field.IsContent) {
        value = TidyLines(value);
        return;
    }
    value = OneLine(value);
    if (field.Bounds)
        value = MendedNumber(value, *field.Bounds, fresh);
    if (!field.Choices.empty() && std::ranges::find(field.Choices, value) == field.Choices.end())
        value = fresh;
    if (field.IsColor && value == noColor)
        value.clear();
    // Nothing but a colour can be empty where the script has a default that is not.
    if (field.IsColor ? !IsStyleColor(value) : value.empty())
        value = fresh;
}

void MendField(const FieldName& field, int& value, const Text&)
{
    if (field.Bounds)
        value = std::clamp(value, static_cast<int>(field.Bounds->Least),
                           static_cast<int>(field.Bounds->Most));
}

void MendField(const FieldName&, BlockRows& rows, const Text&)
{
    for (BlockRow& row : rows)
        Tidy(row);
    std::erase_if(rows, [](const BlockRow& row) { return row.Words.empty(); });
}

void MendField(const FieldName&, BlockPictures& pictures, const Text&)
{
    for (BlockPicture& picture : pictures)
        Tidy(picture);
    std::erase_if(pictures, [](const BlockPicture& picture) { return picture.Address.empty(); });
}

void AddAttribute(BlockAttributes& attributes, const FieldName& field, const Text& value,
                  const Text& fresh)
{
    // A script takes an empty attribute as none.
    if (value != fresh && (field.IsColor || !value.empty()))
        attributes.push_back({AttributeName(field.Name), value.empty() ? Text(noColor) : value});
}

std::optional<Text> TakeAttribute(BlockAttributes& attributes, const FieldName& field)
{
    const auto found = std::ranges::find_if(
        attributes, [name = AttributeName(field.Name)](const BlockAttribute& attribute) {
            return EqualIgnoringCase(attribute.Name, name);
        });
    if (found == attributes.end())
        return std::nullopt;
    Text value = std::move(found->Value);
    attributes.erase(found);
    return value;
}

void SetFromAttribute(const FieldName&, Text& value, TextView attribute)
{
    if (!attribute.empty())
        value = attribute;
}

void SetFromAttribute(const FieldName&, bool& value, TextView attribute)
{
    value = attribute != no;
}

void SetFromAttribute(const FieldName& field, int& value, TextView attribute)
{
    const Text fresh = NumberToText(value);
    SetField(value,
             {field.Bounds ? MendedNumber(attribute, *field.Bounds, fresh) : Text(attribute)});
}

} // namespace orvane
