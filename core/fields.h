#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "core/text.h"

#include <concepts>
#include <type_traits>
#include <vector>

namespace orvane {

/// The name of a field of an effect, which is the object name of its control as well.
struct FieldName
{
    ControlName Name;
    bool IsSecret = false; ///< its value is never kept in a draft

    constexpr FieldName(const char* name, bool isSecret = false) : Name(name), IsSecret(isSecret) {}
};

/// The name of a field whose value is never kept in a draft, such as a password.
constexpr FieldName Secret(const char* name)
{
    return {name, true};
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
