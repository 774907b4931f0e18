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
    bool IsSecret = false; ///< its value is written nowhere but into the page

    constexpr FieldName(const char* name, bool isSecret = false) : Name(name), IsSecret(isSecret) {}
};

/// A field whose value is written nowhere but into the page.
constexpr FieldName Secret(const char* name)
{
    return {name, true};
}

/// What `ForEachField` of an effect takes: the effect, or the effect as a constant.
template <class Given, class Effect>
concept ConstOr = std::same_as<std::remove_const_t<Given>, Effect>;

/// A field's value as texts: one for a single value, one for each entry of a list. Each type that a
/// field can have has such a pair of functions; SetField() leaves the value as it is when the texts
/// do not make one.
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

/// A choice out of a group of options: its number is the option's index, -1 stands for none.
template <class Choice>
requires std::is_enum_v<Choice> FieldTexts TextsOf(Choice value)
{
    return TextsOf(static_cast<int>(value));
}

template <class Choice>
requires std::is_enum_v<Choice>
void SetField(Choice& value, const FieldTexts& texts)
{
    int number = static_cast<int>(value);
    SetField(number, texts);
    value = static_cast<Choice>(number);
}

} // namespace orvane
