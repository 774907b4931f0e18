#pragma once

#include "core/choices.h"
#include "core/complaint.h"
#include "core/payload.h"
#include "core/text.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <optional>
#include <span>
#include <type_traits>
#include <vector>

namespace orvane {

/// The least and the greatest value of a number.
struct NumberBounds
{
    double Least;
    double Most;
    bool operator==(const NumberBounds&) const = default;
};

/// Which of a number's bounds keeps a page calm: the author may go beyond it, and gets the bound.
enum class CalmBound
{
    None,
    Least,
    Most,
};

/// The name of a field of an effect, which is the object name of its control as well, and what else
/// is known of the field whatever its value is.
struct FieldName
{
    ControlName Name;
    bool IsSecret = false;              ///< its value is never kept in a draft
    bool IsContent = false;             ///< stands in a block's content, not in an attribute
    bool IsSource = false;              ///< full path of a file, which stands in no page
    bool IsColor = false;               ///< what CSS takes; empty or "-": as on the page
    std::optional<NumberBounds> Bounds; ///< of a number, also of one that is kept as typed
    CalmBound Calm = CalmBound::None;
    std::span<const TextView> Choices{}; ///< the words that it may hold; empty: any
    /// Of rows: the names under which a draft keeps their second field and those that follow.
    /// Empty: it keeps all fields under `Name`, one row after the other.
    std::array<ControlName, 4> Others = {};

    constexpr FieldName(const char* name, bool isSecret = false) : Name(name), IsSecret(isSecret) {}
};

/// The name of a field whose value is never kept in a draft, such as a password.
constexpr FieldName Secret(const char* name)
{
    return {name, true};
}

/// Names rows whose fields a draft keeps apart: those of a row in their order, of which the first
/// is that of the list box. At most five.
template <class... Names>
constexpr FieldName Lists(const char* first, Names... others)
{
    FieldName name(first);
    name.Others = {others...};
    return name;
}

/// The name of a field that stands in a block's content: a text, rows or pictures.
constexpr FieldName ContentField(const char* name)
{
    FieldName field(name);
    field.IsContent = true;
    return field;
}

/// The name of the full path of a file that a block names beside its page.
constexpr FieldName SourceField(const char* name)
{
    FieldName field = ContentField(name);
    field.IsSource = true;
    return field;
}

/// The name of a number with its bounds.
constexpr FieldName NumberField(const char* name, double least, double most)
{
    FieldName field(name);
    field.Bounds = NumberBounds{least, most};
    return field;
}

/// The name of a number, one of whose bounds keeps the page calm.
constexpr FieldName CalmField(const char* name, double least, double most,
                              CalmBound calm = CalmBound::Least)
{
    FieldName field = NumberField(name, least, most);
    field.Calm = calm;
    return field;
}

/// The name of a list of so many colours.
constexpr FieldName ColorsField(const char* name, double least, double most)
{
    FieldName field = NumberField(name, least, most);
    field.IsColor = true;
    return field;
}

/// The name of a colour that may be as on the page.
constexpr FieldName ColorField(const char* name)
{
    FieldName field(name);
    field.IsColor = true;
    return field;
}

/// The name of a text that is one of these words, which live as long as the program.
constexpr FieldName ChoiceField(const char* name, std::span<const TextView> choices)
{
    FieldName field(name);
    field.Choices = choices;
    return field;
}

/// Accepts `Effect` and `const Effect`, so that one `ForEachField` serves both.
template <class Given, class Effect>
concept ConstOr = std::same_as<std::remove_const_t<Given>, Effect>;

/// A field's value as texts: one for a single value, one for each entry of a list. Each type that a
/// field can have, but for rows, has a pair of functions: TextsOf() gives its texts, and SetField()
/// sets the value from them.
/// Where the texts do not make a value, SetField() leaves a Text, bool or int as it is; an int
/// takes -32768 to 32767. Lists are replaced by what the texts hold, files without a valid slot are
/// left out, and their count is then behind the last one that has a name.
using FieldTexts = std::vector<Text>;

FieldTexts TextsOf(const Text& value);
FieldTexts TextsOf(bool value);
FieldTexts TextsOf(int value);
FieldTexts TextsOf(const std::vector<Text>& value);
FieldTexts TextsOf(const RequiredFiles& value); ///< slot, name and source of each file

void SetField(Text& value, const FieldTexts& texts);
void SetField(bool& value, const FieldTexts& texts);
void SetField(int& value, const FieldTexts& texts);
void SetField(std::vector<Text>& value, const FieldTexts& texts);
void SetField(RequiredFiles& value, const FieldTexts& texts);

/// The number of a choice in a group of options: the index of the option, -1 for none.
template <class Choice>
requires std::is_enum_v<Choice> FieldTexts TextsOf(Choice value)
{
    return TextsOf(static_cast<int>(value));
}

/// Sets a choice by its number; one that the enumeration does not have leaves it as it is.
template <class Choice>
requires std::is_enum_v<Choice>
void SetField(Choice& value, const FieldTexts& texts)
{
    int number = static_cast<int>(value);
    SetField(number, texts);
    if (IsChoice<Choice>(number))
        value = static_cast<Choice>(number);
}

/// Stands for whatever is called with the fields of a struct.
struct AnyField
{
    void operator()(const FieldName&, const auto&) const {}
};

/// A struct beside which ForEachField stands, such as the row of a list. It names the fields of a
/// row by the controls of the window that edits one. Each field of a row has one text.
template <class Row>
concept HasFields = requires(const Row& row)
{
    ForEachField(row, AnyField());
};

template <HasFields Row>
FieldTexts TextsOf(const Row& row)
{
    FieldTexts texts;
    ForEachField(
        row, [&](const FieldName&, const auto& value) { texts.push_back(TextsOf(value).front()); });
    return texts;
}

/// Sets the fields from one text each; those behind the last text stay as they are.
template <HasFields Row>
void SetField(Row& row, const FieldTexts& texts)
{
    std::size_t place = 0;
    ForEachField(row, [&](const FieldName&, auto& value) {
        if (place < texts.size())
            SetField(value, FieldTexts{texts[place++]});
    });
}

/// A list of rows, each with the texts of its fields.
using RowTexts = std::vector<FieldTexts>;

/// Whether a field is a list of rows.
template <class Value>
inline constexpr bool isRows = false;
template <HasFields Row>
inline constexpr bool isRows<std::vector<Row>> = true;

template <HasFields Row>
RowTexts RowTextsOf(const std::vector<Row>& rows)
{
    RowTexts texts;
    for (const Row& row : rows)
        texts.push_back(TextsOf(row));
    return texts;
}

template <HasFields Row>
void SetRows(std::vector<Row>& rows, const RowTexts& texts)
{
    rows.assign(texts.size(), {});
    for (std::size_t i = 0; i < rows.size(); ++i)
        SetField(rows[i], texts[i]);
}

/// An effect that keeps what the author picked for it, as `Required`.
template <class Effect>
concept HasRequiredFiles = requires(Effect& effect)
{
    {
        effect.Required
        } -> std::same_as<RequiredFiles&>;
};

} // namespace orvane
