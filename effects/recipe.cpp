#include "effects/recipe.h"

#include "core/catalogue.h"
#include "core/escapes.h"
#include "core/file_names.h"
#include "core/numbers.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace orvane {

namespace {

constexpr std::string_view effectLine = "Effect";

constexpr TextView recipeHead =
    u"# A recipe of Orvane. Lines that begin with \"#\" are comments; \"\\r\\n\" is a line end, "
    u"\"\\\\\" a backslash.\n";

std::filesystem::path PathOf(TextView text)
{
    return ToUtf8(text);
}

constexpr TextView exampleColor = u"#0000ff";

/// The path of a file as seen from a folder; a path that does not start at the root stays.
Text SeenFrom(TextView folder, TextView path)
{
    const std::filesystem::path seen = PathOf(path).lexically_relative(PathOf(folder));
    return seen.empty() || !path.starts_with(pathSeparator) ? Text(path) : FromUtf8(seen.string());
}

/// The full path of a file that is named as seen from a folder.
Text FullPath(TextView folder, TextView seen)
{
    return FromUtf8((PathOf(folder) / PathOf(seen)).lexically_normal().string());
}

/// The field with this name, or the rows that keep one of theirs under it.
const FieldFacts* FindField(const std::vector<FieldFacts>& fields, std::string_view name)
{
    const auto found = std::ranges::find_if(fields, [=](const FieldFacts& field) {
        return field.Name.Name == name ||
               (!name.empty() &&
                std::ranges::find(field.Name.Others, name) != field.Name.Others.end());
    });
    return found == fields.end() ? nullptr : &*found;
}

/// The number of the choice with that name; the text itself where there is none.
Text NumberOfChoice(const FieldFacts& field, const Text& text)
{
    for (std::size_t i = 0; i < field.ChoiceNames.size(); ++i)
        if (!field.ChoiceNames[i].empty() &&
            EqualIgnoringCase(FromUtf8(field.ChoiceNames[i]), text))
            return NumberToText(static_cast<int>(i) + choices::least);
    return text;
}

/// Whether a text that is one of some words is one of them, or as in a fresh effect.
bool IsAmongChoices(const FieldFacts& field, const FieldTexts& texts)
{
    const auto& words = field.Name.Choices;
    return words.empty() || texts == field.Value ||
           std::ranges::find(words, TextView(texts.front())) != words.end();
}

/// Behind the words that a text is no value: what would be one.
Text PossibleValues(const FieldFacts& field)
{
    std::vector<Text> names(field.Name.Choices.begin(), field.Name.Choices.end());
    for (const std::string_view name : field.ChoiceNames)
        if (!name.empty())
            names.push_back(FromUtf8(name));
    if (!names.empty())
        return Join({u": it is one of ", Listed(names)});
    switch (field.Holds) {
    case FieldHolds::YesNo:
        return u": it is \"yes\" or \"no\"";
    case FieldHolds::Number:
        return u": it is a whole number";
    case FieldHolds::Rows:
        return u": a row of the list lacks a line or has one too much";
    default:
        return u": there is one line too much";
    }
}

/// Whether an effect that was given these texts of a field has them.
bool Took(const DraftFields& draft, const std::string& name, const FieldTexts& given)
{
    const auto found = draft.find(name);
    if (found == draft.end() || found->second.size() < given.size())
        return false;
    // The files are in another order, but none is left out.
    return name == draftFiles || std::equal(given.begin(), given.end(), found->second.begin());
}

/// The lines of one row that a list without any could have, as a comment; empty for other fields.
Text ExampleOf(const FieldFacts& field)
{
    if (!field.Value.empty() ||
        (field.Holds != FieldHolds::Rows && field.Holds != FieldHolds::List))
        return {};
    FieldTexts row = field.FreshRow;
    std::vector<Text> names;
    for (std::size_t i = 0; i < row.size(); ++i) {
        names.push_back(FromUtf8(field.InRow[i].Name));
        if (row[i].empty())
            row[i] = field.InRow[i].IsColor ? exampleColor : names.back();
    }
    if (field.Holds == FieldHolds::List)
        row = {Text(field.Name.IsColor ? exampleColor : u"text")};
    const Text lines = DraftLines(field.Name, RowTexts{row});
    const Text tells = names.empty() ? Text() : Join({u": ", Listed(names)});
    return Join({u"\n# One row of the list ", FromUtf8(field.Name.Name), tells, u"\n#",
                 ReplaceAll(lines.substr(0, lines.size() - 1), u"\n", u"\n#"), u"\n"});
}

/// The lines of a recipe that are fields, and what is wrong with the others.
struct RecipeLines
{
    explicit RecipeLines(TextView text)
    {
        if (text.starts_with(u'\uFEFF'))
            text.remove_prefix(1);
        for (int number = 1; !text.empty(); ++number) {
            TextView line = TakeUntil(text, u'\n');
            if (line.ends_with(u'\r'))
                line.remove_suffix(1);
            if (!Trim(line).empty() && !line.starts_with(u'#'))
                Take(number, line);
        }
    }

    std::vector<GivenField> Fields;
    std::vector<GivenField> Effects;
    std::vector<RecipeFault> Faults;

private:
    void Take(int number, TextView line)
    {
        const std::size_t colon = line.find(u':');
        const TextView value = line.substr(std::min(line.size(), colon + 1));
        // An editor may have taken the blank behind the name of an empty field.
        if (colon == TextView::npos || !(value.empty() || value.starts_with(u' '))) {
            Faults.push_back({number, u"This line is neither a comment nor \"name: value\"."});
            return;
        }
        GivenField field{number, ToUtf8(line.substr(0, colon)),
                         Unescaped(value.substr(std::min<std::size_t>(value.size(), 1)))};
        (field.Name == effectLine ? Effects : Fields).push_back(std::move(field));
    }
};

} // namespace

bool IsRecipeName(TextView path)
{
    return EqualIgnoringCase(Right(path, recipeEnding.size()), recipeEnding);
}

Text LineOf(const RecipeFault& fault)
{
    return fault.Line == 0 ? fault.Words : Join({NumberToText(fault.Line), u": ", fault.Words});
}

bool IsTypedSecret(const FieldFacts& field)
{
    return field.Name.IsSecret && field.Holds == FieldHolds::Words;
}

std::vector<RecipeFault> SetGiven(AnyEffect& effect, const std::vector<GivenField>& given)
{
    const std::vector<FieldFacts> fields = effect.Fields();
    std::vector<RecipeFault> faults;
    std::map<std::string, std::pair<FieldTexts, int>> taken;
    Text draft;
    for (const GivenField& one : given) {
        const FieldFacts* field = FindField(fields, one.Name);
        const Text name = FromUtf8(one.Name);
        if (field != nullptr && field->Name.IsSecret && !IsTypedSecret(*field))
            field = nullptr;
        if (field == nullptr && one.Name != draftFiles) {
            faults.push_back({one.Line, Join({u"This effect has no field \"", name, u"\"."})});
        } else if (field != nullptr && field->Name.IsSecret) {
            faults.push_back(
                {one.Line,
                 Join({u"\"", name, u"\" is secret: it comes from a prompt or the environment."})});
        } else {
            const Text value = field == nullptr ? one.Value : NumberOfChoice(*field, one.Value);
            auto& [texts, line] = taken[one.Name];
            texts.push_back(value);
            line = one.Line;
            draft += DraftLine(one.Name, value);
        }
    }
    effect.ReadDraft(draft);
    const DraftFields after = ReadDraftFields(effect.Draft());
    for (const auto& [name, all] : taken) {
        const auto& [texts, line] = all;
        const FieldFacts* field = FindField(fields, name);
        if (Took(after, name, texts) && (field == nullptr || IsAmongChoices(*field, texts)))
            continue;
        const Text possible = field == nullptr ? Text(u": a file is a slot, a name and a path")
                                               : PossibleValues(*field);
        faults.push_back({line, Join({u"\"", texts.back(), u"\" is no value of \"", FromUtf8(name),
                                      u"\"", possible, u"."})});
    }
    std::ranges::stable_sort(faults, {}, &RecipeFault::Line);
    return faults;
}

Text WriteRecipe(AnyEffect effect, TextView folder)
{
    effect.ForEachSource([&](Text& path) { path = SeenFrom(folder, path); });
    Text recipe = Join(
        {recipeHead, DraftLine(effectLine, RowOf(effect.Kind()).Title), u"\n", effect.Draft()});
    for (const FieldFacts& field : effect.Fields())
        if (!field.Name.IsSecret)
            recipe += ExampleOf(field);
    return recipe;
}

std::variant<AnyEffect, std::vector<RecipeFault>> ReadRecipe(TextView text, TextView folder)
{
    RecipeLines lines(text);
    if (lines.Effects.size() != 1) {
        lines.Faults.push_back({lines.Effects.empty() ? 0 : lines.Effects.back().Line,
                                u"A recipe has one line \"Effect: name\"."});
        return lines.Faults;
    }
    const GivenField& named = lines.Effects.front();
    const CatalogueRow* row = FindRowCalled(named.Value);
    auto effect = row == nullptr ? std::nullopt : AnyEffect::Fresh(row->Kind);
    if (!effect) {
        lines.Faults.push_back({named.Line, Join({u"There is no effect \"", named.Value, u"\"."})});
        return lines.Faults;
    }
    const auto faults = SetGiven(*effect, lines.Fields);
    lines.Faults.insert(lines.Faults.end(), faults.begin(), faults.end());
    std::ranges::stable_sort(lines.Faults, {}, &RecipeFault::Line);
    if (!lines.Faults.empty())
        return lines.Faults;
    effect->ForEachSource([&](Text& path) {
        if (!path.empty())
            path = FullPath(folder, path);
    });
    return *effect;
}

std::variant<AnyEffect, std::vector<RecipeFault>> ReadRecipeFile(const FileStore& files,
                                                                 TextView path)
{
    const auto bytes = files.Read(path);
    if (const Fault* fault = FaultIn(bytes))
        return std::vector{RecipeFault{0, Text(Words(*fault))}};
    return ReadRecipe(FromUtf8(ValueIn(bytes)), FolderOf(path));
}

} // namespace orvane
