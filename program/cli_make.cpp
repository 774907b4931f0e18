#include "core/catalogue.h"
#include "core/file_names.h"
#include "insertion/auto_insert.h"
#include "insertion/new_page.h"
#include "insertion/page_script_lines.h"
#include "program/cli_commands.h"
#include "program/cli_delivery.h"
#include "program/cli_pages.h"
#include "reedit/effects_in_page.h"
#include "reedit/placing.h"

namespace orvane {

namespace {

/// The code as the delivery wizard gives it to be copied by hand, part by part.
Text PrintedCode(const FinishedPayload& payload)
{
    Text code;
    const auto add = [&](TextView heading, TextView part) {
        if (!part.empty())
            code +=
                Join({u"<!-- ", heading, u" -->\r\n", part, part.ends_with(u'\n') ? u"" : lineEnd});
    };
    add(u"Between <HEAD> and </HEAD>:", payload.Effect.HEADHTML);
    if (payload.WantsPageScript)
        add(u"Directly behind <HEAD>:", LinesOfPageScript());
    add(u"Between <BODY> and </BODY>:", payload.Effect.BODYHTML);
    if (!payload.BODYAttribute.empty())
        add(u"The BODY tag:", Join({u"<BODY ", payload.BODYAttribute, u">"}));
    return code;
}

/// What stands in a page of the effect that is to be put into it.
struct Present
{
    bool IsSame = false; ///< with exactly the text that it has now
    std::vector<std::string>
        Edits; ///< for each of the others, the page with the effect in its place
};

Present PresentIn(std::string_view page, const FinishedPayload& payload)
{
    // The insertion puts in line ends of its own.
    const auto lines = [](std::string_view bytes) { return ReplaceAll(bytes, "\r\n", "\n"); };
    const std::string asItIs = lines(page);
    Present present;
    const TextView marker = RowOf(payload.Effect.Kind).MarkerName;
    for (const EffectInPage& effect : EffectsIn(page)) {
        if (!EqualIgnoringCase(effect.Name, marker) || !CanBeTouched(effect))
            continue;
        const PlacedPage placed = WithReplaced(page, effect, payload);
        const auto* edited = std::get_if<std::string>(&placed);
        present.IsSame = present.IsSame || (edited != nullptr && lines(*edited) == asItIs);
        present.Edits.push_back(edited == nullptr ? std::string() : *edited);
    }
    return present;
}

/// Ends the work on a page that holds the effect already; nothing where it is to be put in.
/// Effects that share a script in the HEAD are left to the insertion, which asks about them itself.
std::optional<PageEnd> RenewIn(const CliWorld& world, CliDelivery& delivery, const Text& page,
                               FileStore& files, CliDialogs& dialogs)
{
    const auto read = files.Read(page);
    if (FaultIn(read))
        return std::nullopt;
    const std::string& bytes = ValueIn(read);
    const Present present = PresentIn(bytes, delivery.Payload());
    if (present.IsSame) {
        PageEnd end = delivery.Finish(page, files, dialogs, u"unchanged");
        end.Is = end.Is == PageEnd::As::Written ? PageEnd::As::Kept : end.Is;
        return end;
    }
    if (present.Edits.empty() || SharingHead(EffectsIn(bytes), delivery.Payload()))
        return std::nullopt;
    const bool isReplaced = dialogs.Ask(
        u"Your Web page has this special effect with other values already.  Do you want to change "
        u"it in its place?  Else this one is added.",
        {});
    if (dialogs.Unanswered())
        return PageEnd{PageEnd::As::Kept};
    if (!isReplaced)
        return std::nullopt;
    if (present.Edits.size() > 1)
        return PageEnd{PageEnd::As::Failed,
                       u"it has this special effect several times: which one is to be changed?  "
                       u"Take those out that are not wanted, or say --keep to add one"};
    if (auto failed = PutEdited(world, files, dialogs, page, bytes, present.Edits.front()))
        return failed;
    return delivery.Finish(page, files, dialogs, u"changed");
}

PageEnd InsertInto(const CliWorld& world, CliDelivery& delivery, const Text& page, FileStore& files,
                   CliDialogs& dialogs)
{
    if (auto end = RenewIn(world, delivery, page, files, dialogs))
        return *end;
    switch (AutoInsert(files, dialogs, page, delivery.Payload(), BackupsOf(world))) {
    case AutoInsertion::NothingDone:
        return {PageEnd::As::Failed, Listed(dialogs.TakeSaid(), u"  ")};
    case AutoInsertion::Manual:
        if (dialogs.WasRefused())
            return {PageEnd::As::Kept, u"kept as it is"};
        return {PageEnd::As::Failed, u"it has no HEAD or BODY tag for the code"};
    case AutoInsertion::Inserted:
        break;
    }
    return delivery.Finish(page, files, dialogs, u"put in");
}

PageEnd WriteNew(CliDelivery& delivery, const Text& page, FileStore& files, CliDialogs& dialogs)
{
    if (files.IsTaken(page) &&
        !dialogs.Ask(Join({GetFileName(page), u" already exists.  Do you wish to overwrite?"}), {}))
        return {PageEnd::As::Kept, u"kept as it is"};
    const Done saved = SaveHTMLtoFile(files, page, delivery.Payload());
    if (const Fault* fault = FaultIn(saved))
        return {PageEnd::As::Failed, Text(Words(*fault))};
    return delivery.Finish(page, files, dialogs, u"written");
}

} // namespace

CliExit MakeEffect(const CliRequest& request, CliWorld& world)
{
    if (request.Names().empty() ||
        request.Has("--print") + request.Has("--into") + request.Has("--new") != 1) {
        world.Error("orvane-cli: make takes a recipe, and one of --print, --into "
                    "and --new\n");
        return CliExit::WrongUse;
    }
    auto recipe = ReadRecipeFile(world, request.Names().front());
    if (const auto* faults = std::get_if<CliFaults>(&recipe))
        return Tell(world, *faults);
    auto& [effect, folder] = std::get<CliRecipe>(recipe);
    auto ready = Prepare(std::move(effect), request, world);
    if (const auto* faults = std::get_if<CliFaults>(&ready))
        return Tell(world, *faults);
    CliDelivery delivery(world, std::get<CliPayload>(std::move(ready)), folder);
    if (request.Has("--print")) {
        world.Out(ToUtf8(PrintedCode(delivery.Payload())));
        return CliExit::Success;
    }
    PageRun run(world, request);
    if (const auto page = request.Value("--new"))
        return run.On(FullPathOf(world, *page),
                      [&](const Text& path, FileStore& files, CliDialogs& dialogs) {
                          return WriteNew(delivery, path, files, dialogs);
                      });
    return run.Over(1, [&](const Text& page, FileStore& files, CliDialogs& dialogs) {
        return InsertInto(world, delivery, page, files, dialogs);
    });
}

CliExit CheckRecipes(const CliRequest& request, CliWorld& world)
{
    CliExit exit = CliExit::Success;
    for (const Text& name : request.Names()) {
        auto recipe = ReadRecipeFile(world, name);
        CliFaults faults;
        if (auto* unread = std::get_if<CliFaults>(&recipe)) {
            faults = *unread;
        } else {
            const Text path = FullPathOf(world, name);
            AnyEffect& effect = std::get<CliRecipe>(recipe).Effect;
            effect.ForEachSource([&](const Text& source) {
                if (!source.empty() && !world.Files.FileExists(source))
                    faults.push_back(Join({path, u": there is no file ", source}));
            });
            const auto ready = Prepare(effect, request, world, CliSecrets::Pretended);
            if (const auto* wrong = std::get_if<CliFaults>(&ready))
                for (const Text& fault : *wrong)
                    faults.push_back(Join({path, u": ", fault}));
        }
        if (!faults.empty())
            exit = Tell(world, faults);
    }
    return exit;
}

} // namespace orvane
