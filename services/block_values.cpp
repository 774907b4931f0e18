#include "services/block_values.h"

#include "core/numbers.h"
#include "core/percents.h"
#include "core/utf8.h"
#include "services/block_pictures.h"

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
    const bool isFit = number && number->IsAll &&
                       (field.Calm == CalmBound::Least || number->Value >= field.Bounds->Least) &&
                       (field.Calm == CalmBound::Most || number->Value <= field.Bounds->Most);
    if (isFit || OneLine(text).empty())
        return std::nullopt;
    return Complaint{Join({u"Please enter a number from ", NumberToText(field.Bounds->Least),
                           u" to ", NumberToText(field.Bounds->Most), u"."}),
                     field.Name};
}

std::optional<Text> CalmWords(const FieldName& field, TextView text)
{
    const auto number = ReadNumber(text);
    if (field.Calm == CalmBound::None || !number || CheckNumber(field, text))
        return std::nullopt;
    if (number->Value < field.Bounds->Least)
        return Join({u"The page takes ", NumberToText(field.Bounds->Least),
                     u": with less it would not be calm enough to read."});
    if (number->Value > field.Bounds->Most)
        return Join({u"The page takes ", NumberToText(field.Bounds->Most),
                     u": more can harm those who look at it."});
    return std::nullopt;
}

std::optional<Complaint> CheckPictures(const BlockPictures& pictures, ControlName control,
                                       const PictureCount& count)
{
    // A picture without an address goes when the wizard ends.
    const auto shown = static_cast<std::size_t>(std::ranges::count_if(
        pictures, [](const BlockPicture& picture) { return !OneLine(picture.Address).empty(); }));
    if (shown == 0)
        return Complaint{u"Please add a picture to the list.", control};
    if (shown < count.Least)
        return Complaint{u"Please add a second picture to the list.", control};
    if (shown > count.Most)
        return Complaint{
            Join({u"Please add ", NumberToText(count.Most), u" pictures at most to the list."}),
            control};
    for (const BlockPicture& picture : pictures)
        for (const BlockPicture& other : pictures)
            if (picture.Address == other.Address && picture.Source != other.Source)
                return Complaint{Join({u"Two different pictures of the list are called \"",
                                       WithoutPercents(picture.Address),
                                       u"\".  Please give one of the files another name."}),
                                 control};
    return std::nullopt;
}

std::optional<Complaint> CheckColor(TextView color, TextView what, ControlName control)
{
    const Text given = OneLine(color);
    if (!given.empty() && given != noColor)
        return std::nullopt;
    return Complaint{Join({u"Please choose a color for ", what, u"."}), control};
}

void MendField(const FieldName& field, Text& value, const Text& fresh)
{
    if (field.IsSource)
        return;
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

void MendField(const FieldName&, BlockParagraphs& paragraphs, const Text&)
{
    paragraphs.Words = TidyParagraphs(paragraphs.Words);
}

void MendField(const FieldName& field, std::vector<Text>& colors, const Text& fresh)
{
    for (Text& color : colors)
        color = OneLine(color);
    // A blank parts two colours in the attribute.
    std::erase_if(colors, [](const Text& color) {
        return color.empty() || color == noColor || color.find(u' ') != Text::npos ||
               !IsStyleColor(color);
    });
    const auto least = static_cast<std::size_t>(field.Bounds->Least);
    const auto most = static_cast<std::size_t>(field.Bounds->Most);
    if (colors.size() < least)
        SetFromAttribute(field, colors, fresh);
    colors.resize(std::min(colors.size(), most));
}

void MendField(const FieldName&, BlockPictures& pictures, const Text&)
{
    for (BlockPicture& picture : pictures)
        Tidy(picture);
    std::erase_if(pictures, [](const BlockPicture& picture) { return picture.Address.empty(); });
}

void MendField(const FieldName&, RolloverRows& rows, const Text&)
{
    for (RolloverRow& row : rows)
        Tidy(row);
    std::erase_if(rows, [](const RolloverRow& row) { return Check(row).has_value(); });
}

Text AttributeText(const std::vector<Text>& value)
{
    return Listed(value, u" ");
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

void SetFromAttribute(const FieldName&, std::vector<Text>& value, TextView attribute)
{
    value.clear();
    for (TextView rest = attribute; !rest.empty();)
        if (const TextView color = TakeUntil(rest, u' '); !color.empty())
            value.emplace_back(color);
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
