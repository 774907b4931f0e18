#pragma once

#include "core/file_store.h"
#include "effects/effects.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvane {

// A recipe is a text file with an effect's title and its fields as a draft has them, for people to
// read and to write:
//
//   # A comment.
//   Effect: Status Bar Text Ticker
//   txtText: Plums today
//
// Empty lines count for nothing. Files are named by their path from the recipe's folder, and what
// is secret stands in none.

/// The ending of a recipe's name.
inline constexpr TextView recipeEnding = u".ovr";

/// Whether a file of this name is a recipe, its letters in any case.
bool IsRecipeName(TextView path);

/// A field as it was given by hand.
struct GivenField
{
    int Line = 0; ///< in a recipe, counted from 1; 0 elsewhere
    std::string Name;
    Text Value;
};

/// What is wrong with a recipe or a given field.
struct RecipeFault
{
    int Line = 0; ///< counted from 1; 0 for none
    Text Words;
    bool operator==(const RecipeFault&) const = default;
};

/// The fault as a line tells it, such as "2: This effect has no field "x"."; without a line, the
/// words alone.
Text LineOf(const RecipeFault& fault);

/// Sets fields of the effect; several of one name are a list, and a choice may be given by its
/// name. Gives what is wrong: names of no field or of a secret one, and values that their fields
/// cannot hold.
std::vector<RecipeFault> SetGiven(AnyEffect& effect, const std::vector<GivenField>& given);

/// Whether the field is a secret that the author types, such as a password.
bool IsTypedSecret(const FieldFacts& field);

/// The text of the effect's recipe for a file in this folder. For each list that is empty it shows,
/// as a comment, how a row is written.
Text WriteRecipe(AnyEffect effect, TextView folder);

/// The effect that the text of a recipe in this folder tells; fields that it lacks are fresh. Else
/// all that is wrong with it.
std::variant<AnyEffect, std::vector<RecipeFault>> ReadRecipe(TextView text, TextView folder);

/// The same for the recipe with this full path; a file that cannot be read is one fault.
std::variant<AnyEffect, std::vector<RecipeFault>> ReadRecipeFile(const FileStore& files,
                                                                 TextView path);

} // namespace orvane
