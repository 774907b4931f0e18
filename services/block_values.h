#pragma once

#include "core/block.h"
#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "services/block_rows.h"

#include <concepts>
#include <optional>
#include <tuple>
#include <type_traits>
#include <vector>

namespace orvane {

// What the value of one field of a block can be, and how its attribute holds it.

/// The name of the attribute of a field: the control's without its prefix, in small letters, with a
/// hyphen before each inner capital, behind "data-".
Text AttributeName(ControlName control);

/// What a number field holds for a text: the number at its start, as a browser's script reads it,
/// within the bounds; `fresh` where there is none.
Text MendedNumber(TextView text, const NumberBounds& bounds, TextView fresh);

/// The complaint about a text that is neither empty nor a number within the field's bounds, or
/// nothing; beyond a bound that keeps the page calm there is none.
std::optional<Complaint> CheckNumber(const FieldName& field, TextView text);

/// What the author is told about a number beyond the bound that keeps the page calm, or nothing.
std::optional<Text> CalmWords(const FieldName& field, TextView text);

/// How many pictures an effect can show; the upload list has room for as many.
struct PictureCount
{
    std::size_t Least = 1; ///< one or two
    std::size_t Most = std::tuple_size_v<decltype(RequiredFiles::RequiredFileNames)>;
};

/// The complaint about too few pictures, too many, or two files of one name, or nothing; those
/// without an address do not count.
std::optional<Complaint> CheckPictures(const BlockPictures& pictures, ControlName control,
                                       const PictureCount& count = {});

/// The complaint about a colour that is as on the page where that is not possible, or nothing;
/// `what` is what has the colour.
std::optional<Complaint> CheckColor(TextView color, TextView what, ControlName control);

/// Mends the value of a field as a wizard does when it ends: texts are put in order, numbers, words
/// and colours that it cannot hold give way to `fresh`, its value in a fresh window, links that
/// begin with "www." get "http://" in front, rows and pictures that show nothing go.
void MendField(const FieldName& field, Text& value, const Text& fresh);
void MendField(const FieldName& field, int& value, const Text& fresh);
void MendField(const FieldName& field, std::vector<Text>& colors, const Text& fresh);
void MendField(const FieldName& field, BlockParagraphs& paragraphs, const Text& fresh);
void MendField(const FieldName& field, BlockPictures& pictures, const Text& fresh);
void MendField(const FieldName& field, RolloverRows& rows, const Text& fresh);
inline void MendField(const FieldName&, bool&, const Text&) {}
inline void MendField(const FieldName&, BlockAttributes&, const Text&) {}
template <class Choice>
requires std::is_enum_v<Choice>
void MendField(const FieldName&, Choice&, const Text&) {}
template <class Row>
requires requires(Row& row)
{
    Tidy(row);
}
void MendField(const FieldName&, std::vector<Row>& rows, const Text&)
{
    for (Row& row : rows)
        Tidy(row);
    std::erase_if(rows, [](const Row& row) { return row.Words.empty(); });
}

/// Adds the attribute of a field, unless the script takes its value anyway.
void AddAttribute(BlockAttributes& attributes, const FieldName& field, const Text& value,
                  const Text& fresh);

/// Removes the attribute of a field from a block's and gives its value; nothing where it has none.
std::optional<Text> TakeAttribute(BlockAttributes& attributes, const FieldName& field);

/// Sets a field from its attribute as the block's script understands it.
void SetFromAttribute(const FieldName& field, Text& value, TextView attribute);
void SetFromAttribute(const FieldName& field, bool& value, TextView attribute);
void SetFromAttribute(const FieldName& field, int& value, TextView attribute);
void SetFromAttribute(const FieldName& field, std::vector<Text>& value, TextView attribute);

/// The types of fields that an attribute can hold, and of those that a block can show.
template <class Value>
concept AttributeValue = std::same_as<Value, Text> || std::same_as<Value, bool> ||
    std::same_as<Value, int> || std::same_as<Value, std::vector<Text>>;
template <class Value>
concept ContentValue = std::same_as<Value, Text> || std::same_as<Value, BlockParagraphs> ||
    std::same_as<Value, BlockRows> || std::same_as<Value, ColoredRows> ||
    std::same_as<Value, QuoteRows> || std::same_as<Value, RolloverRows> ||
    std::same_as<Value, BlockPictures>;

/// What the attribute of a field holds.
Text AttributeText(const std::vector<Text>& value);
template <AttributeValue Value>
Text AttributeText(const Value& value)
{
    return TextsOf(value).front();
}

} // namespace orvane
