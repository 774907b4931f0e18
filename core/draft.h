#pragma once

#include "core/fields.h"

#include <map>
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

/// What the author entered, as lines that a person can read; secret fields are left out.
template <class Effect>
Text WriteDraft(const Effect& effect)
{
    Text draft;
    ForEachField(effect, [&](FieldName name, const auto& value) {
        if (name.IsSecret)
            return;
        for (const Text& text : TextsOf(value))
            draft += DraftLine(name.Name, text);
    });
    return draft;
}

/// Whether a draft's text may fill secret fields too. No draft that this program writes has one, and
/// what a file says of one is not believed.
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
    ForEachField(effect, [&](FieldName name, auto& value) {
        const auto found = fields.find(name.Name);
        if (found != fields.end() && (!name.IsSecret || secrets == Secrets::Taken))
            SetField(value, found->second);
    });
}

} // namespace orvane
