#pragma once

#include "core/fields.h"

#include <map>
#include <optional>
#include <string>

namespace orvane {

/// The values of a draft by the names of their fields.
using DraftFields = std::map<std::string, FieldTexts, std::less<>>;

/// One line of a draft, "name: value" and a line feed. A backslash, CR or LF in the value is
/// written as "\\", "\r" or "\n".
Text DraftLine(std::string_view name, TextView value);

/// The fields in a draft's text. Lines with the same name are the texts of one field; a line
/// without ": " is ignored.
DraftFields ReadDraftFields(TextView draft);

/// The lines of a field, one for each text of its value.
Text DraftLines(std::string_view name, const FieldTexts& texts);

/// The lines of a list of rows, under the names that FieldName gives its fields.
Text DraftLines(const FieldName& name, const RowTexts& rows);

/// The rows under these names in a draft, with the texts of `fresh` for fields that it lacks; under
/// one name alone, an incomplete row at the end is left out. Nothing when the draft has none of the
/// names.
std::optional<RowTexts> RowsIn(const DraftFields& draft, const FieldName& name,
                               const FieldTexts& fresh);

/// The name of the files that the author picked, which no control shows.
inline constexpr std::string_view draftFiles = "Required";

/// What the author entered, as lines that a person can read; secret fields are left out.
template <class Effect>
Text WriteDraft(const Effect& effect)
{
    Text draft;
    ForEachField(effect, [&]<class Value>(const FieldName& name, const Value& value) {
        if (name.IsSecret)
            return;
        if constexpr (isRows<Value>)
            draft += DraftLines(name, RowTextsOf(value));
        else
            draft += DraftLines(name.Name, TextsOf(value));
    });
    if constexpr (HasRequiredFiles<Effect>)
        draft += DraftLines(draftFiles, TextsOf(effect.Required));
    return draft;
}

/// Whether a draft's text may fill secret fields too. No draft that this program writes has one,
/// and what a file says of one is not believed.
enum class Secrets
{
    Skipped,
    Taken,
};

/// Puts a draft's values into the effect; fields that the draft lacks stay as they are. Lines with
/// names of no field are ignored.
template <class Effect>
void ReadDraft(Effect& effect, TextView draft, Secrets secrets = Secrets::Skipped)
{
    const DraftFields fields = ReadDraftFields(draft);
    const auto read = [&](std::string_view name, auto& value) {
        if (const auto found = fields.find(name); found != fields.end())
            SetField(value, found->second);
    };
    ForEachField(effect, [&]<class Value>(const FieldName& name, Value& value) {
        if (name.IsSecret && secrets == Secrets::Skipped)
            return;
        if constexpr (!isRows<Value>)
            read(name.Name, value);
        else if (const auto rows = RowsIn(fields, name, TextsOf(typename Value::value_type())))
            SetRows(value, *rows);
    });
    if constexpr (HasRequiredFiles<Effect>)
        read(draftFiles, effect.Required);
}

} // namespace orvane
