#include "core/file_names.h"
#include "insertion/auto_insert.h"
#include "insertion/new_page.h"
#include "insertion/page_script_lines.h"
#include "program/cli_commands.h"
#include "program/cli_delivery.h"
#include "program/cli_pages.h"

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

PageEnd InsertInto(const CliWorld& world, CliDelivery& delivery, const Text& page, FileStore& files,
                   CliDialogs& dialogs)
{
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
