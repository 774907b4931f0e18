#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "core/text.h"

#include <concepts>
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

/// The name of a field of an effect, which is the object name of its control as well, and what else
/// is known of the field whatever its value is.
struct FieldName
{
    ControlName Name;
    bool IsSecret = false;               ///< its value is never kept in a draft
    bool IsContent = false;              ///< stands in a block's content, not in an attribute
    bool IsColor = false;                ///< what CSS takes; empty or "-": as on the page
    std::optional<NumberBounds> Bounds;  ///< of a number, also of one that is kept as typed
    std::span<const TextView> Choices{}; ///< the words that it may hold; empty: any

    constexpr FieldName(const char* name, bool isSecret = false) : Name(name), IsSecret(isSecret) {}
};

/// The name of a field whose value is never kept in a draft, such as a password.
constexpr FieldName Secret(const char* name)
{
    return {name, true};
}

/// The name of a field that stands in a block's content: a text, rows or pictures.
constexpr FieldName ContentField(const char* name)
{
    FieldName field(name);
    field.IsContent = true;
    return field;
}

/// The name of a number with its bounds.
constexpr FieldName NumberField(const char* name, double least, double most)
{
    FieldName field(name);
    field.Bounds = NumberBounds{least, most};
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
/// field can have has a pair of functions: TextsOf() gives its texts, and SetField() sets the value
/// from them.
/// Where the texts do not make a value, SetField() leaves a Text, bool or int as it is; an int
/// takes -32768 to 32767. Lists are replaced by what the texts hold, and files without a valid slot
/// are left out.
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

/// Sets a choice by its number. Which numbers the enumeration has is not checked here: a window
/// shows no choice that it does not offer, so none reaches the effect from it.
template <class Choice>
requires std::is_enum_v<Choice>
void SetField(Choice& value, const FieldTexts& texts)
{
    int number = static_cast<int>(value);
    SetField(number, texts);
    value = static_cast<Choice>(number);
}

} // namespace orvane
