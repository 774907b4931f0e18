#include "program/cli.h"

#include "program/cli_commands.h"
#include "program/cli_pages.h"

#include <algorithm>
#include <vector>

namespace orvane {

namespace {

constexpr const char* usage = R"(Usage: orvane-cli COMMAND ...
Makes special effects for Web pages, without a window.

effects [--fields NAME] [--json]     all effects, or the fields of one
effects --recipe NAME                a recipe of one as it is in a fresh wizard
make RECIPE --print                  the effect's code, to be put in by hand
make RECIPE --into PAGE...           put into pages
make RECIPE --new PAGE               a new page around it
list PAGE... [--json]                the effects that stand in pages
remove PAGE... --effect NAME         take them out again
change PAGE... --effect NAME --set FIELD=VALUE
                                     set fields of those that stand in pages
check RECIPE...                      what is wrong with recipes

--set FIELD=VALUE      sets a field, also for make; several make a list
--today                with the page script, so that it runs in today's browsers
--folder DIR           the pages in this folder and those below it
--pattern MASKS        of their names; "*.html;*.htm" without it
--replace, --keep      the answer to every question
--dry-run              writes nothing, and shows what would change
--help, --version

The manual page orvane-cli(1) tells more.
)";

/// A command with the options that it takes.
struct CliCommand
{
    std::string_view Name;
    CliExit (*Run)(const CliRequest& request, CliWorld& world);
    std::vector<CliOption> Options;
    bool IsOverPages = false;
};

const std::vector<CliCommand>& Commands()
{
    static const std::vector<CliCommand> commands = {
        {"effects", ShowEffects, {{"--fields", true}, {"--recipe", true}, {"--json"}}},
        {"make",
         MakeEffect,
         {{"--print"},
          {"--into"},
          {"--new", true},
          {"--set", true},
          {"--today"},
          {"--dry-run"},
          {"--replace"},
          {"--keep"}},
         true},
        {"list", ListPages, {{"--json"}}, true},
        {"remove", RemoveEffect, {{"--effect", true}, {"--dry-run"}}, true},
        {"change",
         ChangeEffect,
         {{"--effect", true}, {"--set", true}, {"--dry-run"}, {"--replace"}, {"--keep"}},
         true},
        {"check", CheckRecipes, {{"--set", true}}},
    };
    return commands;
}

CliExit WrongUse(const CliWorld& world, const std::string& words)
{
    world.Error("orvane-cli: " + words + "; orvane-cli --help tells the usage\n");
    return CliExit::WrongUse;
}

} // namespace

CliExit RunCli(std::span<const std::string> words, CliWorld& world)
{
    if (words.empty())
        return WrongUse(world, "no command");
    if (std::ranges::find(words, "--help") != words.end() || words.front() == "-h") {
        world.Out(usage);
        return CliExit::Success;
    }
    if (words.front() == "--version") {
        world.Out("Orvane " + ToUtf8(world.Version) + "\n");
        return CliExit::Success;
    }
    const auto command = std::ranges::find(Commands(), words.front(), &CliCommand::Name);
    if (command == Commands().end())
        return WrongUse(world, "there is no command " + words.front());
    std::vector<CliOption> options = command->Options;
    if (command->IsOverPages)
        options.insert(options.end(), pageOptions.begin(), pageOptions.end());
    const auto request = CliRequest::Read(words.subspan(1), options);
    if (const auto* wrong = std::get_if<std::string>(&request))
        return WrongUse(world, *wrong);
    return command->Run(std::get<CliRequest>(request), world);
}

} // namespace orvane
