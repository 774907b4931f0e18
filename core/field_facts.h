#pragma once

#include "core/fields.h"

#include <concepts>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

namespace orvane {

/// What a field holds.
enum class FieldHolds
{
    Words,
    YesNo,
    Number, ///< a whole one
    Choice, ///< the number of an option
    List,   ///< of texts
    Rows,
};

/// What is known of one field of an effect, whichever it is.
struct FieldFacts
{
    FieldName Name;
    FieldHolds Holds = FieldHolds::Words;
    FieldTexts Value; ///< of rows, the texts of all of them
    /// Of a Choice: the name of each number at its place plus 1; empty for a number without one.
    std::span<const std::string_view> ChoiceNames{};
    std::vector<FieldName> InRow{}; ///< of Rows, the fields of one
    FieldTexts FreshRow{};          ///< and their texts where nothing was entered
};

namespace facts {

template <class Value>
FieldFacts FactsOfField(const FieldName& name, const Value& value)
{
    if constexpr (isRows<Value>) {
        FieldFacts rows{name, FieldHolds::Rows};
        for (const FieldTexts& row : RowTextsOf(value))
            rows.Value.insert(rows.Value.end(), row.begin(), row.end());
        const typename Value::value_type row{};
        ForEachField(row,
                     [&](const FieldName& inRow, const auto&) { rows.InRow.push_back(inRow); });
        rows.FreshRow = TextsOf(row);
        return rows;
    } else if constexpr (std::is_enum_v<Value>) {
        return {name, FieldHolds::Choice, TextsOf(value), choiceNames<Value>};
    } else if constexpr (std::same_as<Value, bool>) {
        return {name, FieldHolds::YesNo, TextsOf(value)};
    } else if constexpr (std::same_as<Value, int>) {
        return {name, FieldHolds::Number, TextsOf(value)};
    } else if constexpr (std::same_as<Value, std::vector<Text>>) {
        return {name, FieldHolds::List, TextsOf(value)};
    } else {
        return {name, FieldHolds::Words, TextsOf(value)};
    }
}

} // namespace facts

/// The facts of all fields, in the window's order.
template <class Effect>
std::vector<FieldFacts> FactsOf(const Effect& effect)
{
    std::vector<FieldFacts> all;
    ForEachField(effect, [&](const FieldName& name, const auto& value) {
        all.push_back(facts::FactsOfField(name, value));
    });
    return all;
}

/// Calls `source` with each full path of a file that the effect holds, which may change it; with
/// empty ones too.
template <class Effect, class Source>
void ForEachSource(Effect& effect, Source&& source)
{
    const auto inField = [&]<class Value>(const FieldName& name, Value& value) {
        if constexpr (std::same_as<Value, Text>)
            if (name.IsSource)
                source(value);
    };
    ForEachField(effect, [&]<class Value>(const FieldName& name, Value& value) {
        if constexpr (isRows<Value>)
            for (auto& row : value)
                ForEachField(row, inField);
        else
            inField(name, value);
    });
    if constexpr (HasRequiredFiles<Effect>)
        for (Text& path : effect.Required.RequiredFileSources)
            source(path);
}

} // namespace orvane
