#include "core/catalogue.h"
#include "core/numbers.h"
#include "effects/effects.h"
#include "effects/recipe.h"
#include "program/cli_commands.h"
#include "program/cli_effect.h"
#include "program/cli_json.h"

namespace orvane {

namespace {

std::string_view NameOf(FieldHolds holds)
{
    switch (holds) {
    case FieldHolds::Words:
        return "text";
    case FieldHolds::YesNo:
        return "yes or no";
    case FieldHolds::Number:
        return "whole number";
    case FieldHolds::Choice:
        return "choice";
    case FieldHolds::List:
        return "list of texts";
    case FieldHolds::Rows:
        return "list of rows";
    }
    return {};
}

/// The words that a field may hold; none where it may hold any.
std::vector<Text> ChoicesOf(const FieldFacts& field)
{
    std::vector<Text> choices(field.Name.Choices.begin(), field.Name.Choices.end());
    for (const std::string_view name : field.ChoiceNames)
        if (!name.empty())
            choices.push_back(FromUtf8(name));
    return choices;
}

/// What a field may hold, in words.
Text MeaningOf(const FieldFacts& field)
{
    Text words = FromUtf8(NameOf(field.Holds));
    if (IsTypedSecret(field))
        words = u"secret text";
    else if (field.Name.IsColor)
        words = field.Holds == FieldHolds::List ? u"list of colors" : u"color";
    else if (field.Name.IsSource)
        words = u"path of a file";
    if (const auto& bounds = field.Name.Bounds)
        words += Join({u", ", NumberToText(bounds->Least), u" to ", NumberToText(bounds->Most)});
    if (const auto choices = ChoicesOf(field); !choices.empty())
        words += Join({u": ", Listed(choices)});
    if (!field.InRow.empty()) {
        std::vector<Text> names;
        for (const FieldName& name : field.InRow)
            names.push_back(FromUtf8(name.Name));
        words += Join({u" of ", Listed(names)});
    }
    return words;
}

/// Whether a recipe can hold the field, or a prompt asks for it.
bool IsShown(const FieldFacts& field)
{
    return !field.Name.IsSecret || IsTypedSecret(field);
}

std::string Json(const FieldFacts& field, TextView label)
{
    std::vector<std::string> value;
    for (const Text& text : field.Value)
        value.push_back(JsonText(text));
    std::vector<std::string> choices;
    for (const Text& choice : ChoicesOf(field))
        choices.push_back(JsonText(choice));
    return JsonObject({{"name", JsonText(FromUtf8(field.Name.Name))},
                       {"label", JsonText(label)},
                       {"holds", JsonText(FromUtf8(NameOf(field.Holds)))},
                       {"meaning", JsonText(MeaningOf(field))},
                       {"default", JsonArray(value)},
                       {"choices", JsonArray(choices)},
                       {"secret", field.Name.IsSecret ? "true" : "false"}});
}

std::string Json(const CatalogueRow& row, bool withFields, const CliWorld& world)
{
    std::vector<std::string> fields;
    for (const FieldFacts& field : AnyEffect::Fresh(row.Kind)->Fields())
        if (withFields && IsShown(field))
            fields.push_back(Json(field, world.FieldLabel(row.Form, field.Name.Name)));
    const std::string effect = JsonObject({{"title", JsonText(row.Title)},
                                           {"name", JsonText(row.MarkerName)},
                                           {"description", JsonText(row.Description)}});
    if (!withFields)
        return effect;
    return effect.substr(0, effect.size() - 1) + ", \"fields\": " + JsonArray(fields) + "}";
}

std::string Lines(const CatalogueRow& row, bool withFields, const CliWorld& world)
{
    if (!withFields)
        return ToUtf8(Join({row.Title, u"\t", row.Description, u"\n"}));
    std::string lines;
    for (const FieldFacts& field : AnyEffect::Fresh(row.Kind)->Fields())
        if (IsShown(field))
            lines += ToUtf8(Join({FromUtf8(field.Name.Name), u"\t", Listed(field.Value), u"\t",
                                  MeaningOf(field), u"\t",
                                  world.FieldLabel(row.Form, field.Name.Name), u"\n"}));
    return lines;
}

} // namespace

CliExit ShowEffects(const CliRequest& request, CliWorld& world)
{
    const auto fresh = request.Value("--recipe");
    const auto named = fresh ? fresh : request.Value("--fields");
    std::vector<const CatalogueRow*> rows;
    if (!named) {
        for (const CatalogueRow& row : Catalogue())
            if (FindRowCalled(row.Title) == &row && AnyEffect::Fresh(row.Kind))
                rows.push_back(&row);
    } else if (const CatalogueRow* row = FindRowCalled(*named);
               row != nullptr && AnyEffect::Fresh(row->Kind)) {
        rows.push_back(row);
    } else {
        return Tell(world, {Join({u"there is no effect \"", *named, u"\""})});
    }
    if (fresh) {
        world.Out(ToUtf8(WriteRecipe(*AnyEffect::Fresh(rows.front()->Kind), world.CurrentFolder)));
        return CliExit::Success;
    }
    std::vector<std::string> shown;
    for (const CatalogueRow* row : rows)
        shown.push_back(request.Has("--json") ? Json(*row, named.has_value(), world)
                                              : Lines(*row, named.has_value(), world));
    if (request.Has("--json"))
        world.Out(JsonArray(shown) + '\n');
    else
        for (const std::string& lines : shown)
            world.Out(lines);
    return CliExit::Success;
}

} // namespace orvane
