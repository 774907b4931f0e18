#include "program/cli_effect.h"

#include "core/effect.h"
#include "core/file_names.h"
#include "core/numbers.h"
#include "effects/recipe.h"
#include "program/cli_pages.h"

namespace orvane {

namespace {

/// The fields that --set options give; a value's line feeds become line ends.
std::variant<std::vector<GivenField>, CliFaults> FieldsToSet(const CliRequest& request)
{
    std::vector<GivenField> fields;
    for (const Text& given : request.Values("--set")) {
        const std::size_t sign = given.find(u'=');
        if (sign == Text::npos)
            return CliFaults{Join({u"--set takes field=value, and not \"", given, u"\""})};
        const Text value = ReplaceAll(given.substr(sign + 1), lineEnd, u"\n");
        fields.push_back({0, ToUtf8(given.substr(0, sign)), ReplaceAll(value, u"\n", lineEnd)});
    }
    return fields;
}

Deliverable DeliverableOf(AnyEffect effect, const CliWorld& world)
{
    if (auto complaint = effect.Check())
        return *std::move(complaint);
    effect.Tidy();
    return effect.Generate({world.Clock, world.Folders.Program});
}

void SetSecret(AnyEffect& effect, ControlName field, TextView value)
{
    effect.ReadDraft(DraftLine(field, value), Secrets::Taken);
}

/// Whether a text in the secret field makes another effect.
bool IsWanted(const AnyEffect& effect, ControlName field, const CliWorld& world)
{
    AnyEffect other = effect;
    SetSecret(other, field, u"x");
    return DeliverableOf(other, world) != DeliverableOf(effect, world);
}

void BringSecrets(AnyEffect& effect, const CliWorld& world, CliSecrets secrets)
{
    for (const FieldFacts& field : effect.Fields()) {
        const ControlName name = field.Name.Name;
        if (!IsTypedSecret(field) || !IsWanted(effect, name, world))
            continue;
        if (secrets == CliSecrets::Pretended)
            SetSecret(effect, name, u"x");
        else if (const auto value = world.Variable(Join({u"ORVANE_", FromUtf8(name)})))
            SetSecret(effect, name, *value);
        else if (world.AskSecret)
            SetSecret(effect, name, world.AskSecret(std::string(name)));
    }
}

} // namespace

std::variant<CliRecipe, CliFaults> ReadRecipeFile(const CliWorld& world, TextView name)
{
    const Text path = FullPathOf(world, name);
    auto read = ReadRecipeFile(world.Files, path);
    if (auto* effect = std::get_if<AnyEffect>(&read))
        return CliRecipe{std::move(*effect), Text(FolderOf(path))};
    CliFaults faults;
    for (const RecipeFault& fault : std::get<std::vector<RecipeFault>>(read))
        faults.push_back(Join({path, fault.Line == 0 ? u": " : u":", LineOf(fault)}));
    return faults;
}

std::variant<CliPayload, CliFaults> Prepare(AnyEffect effect, const CliRequest& request,
                                            const CliWorld& world, CliSecrets secrets)
{
    const auto given = FieldsToSet(request);
    if (const auto* faults = std::get_if<CliFaults>(&given))
        return *faults;
    CliFaults faults;
    for (const RecipeFault& fault : SetGiven(effect, std::get<std::vector<GivenField>>(given)))
        faults.push_back(fault.Words);
    if (!faults.empty())
        return faults;
    BringSecrets(effect, world, secrets);
    const auto made = DeliverableOf(effect, world);
    if (const auto* complaint = std::get_if<Complaint>(&made))
        return CliFaults{
            Join({FromUtf8(complaint->Control), complaint->Control.empty() ? u"" : u": ",
                  OnOneLine(complaint->Words)})};
    effect.Tidy();
    CliPayload ready{Finish(std::get<EffectPayload>(made)), effect.Draft()};
    ready.Payload.WantsPageScript = request.Has("--today") && !RunsByItself(ready.Payload.Effect);
    return ready;
}

CliExit Tell(const CliWorld& world, const CliFaults& faults)
{
    for (const Text& fault : faults)
        world.Error(ToUtf8(Join({u"orvane-cli: ", fault, u"\n"})));
    return CliExit::Failed;
}

} // namespace orvane
