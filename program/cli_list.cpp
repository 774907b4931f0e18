#include "insertion/page_script.h"
#include "program/cli_commands.h"
#include "program/cli_json.h"
#include "program/cli_pages.h"
#include "reedit/effect_words.h"

#include <utility>

namespace orvane {

namespace {

std::string_view NameOf(EffectState state)
{
    switch (state) {
    case EffectState::Whole:
        return "whole";
    case EffectState::Changed:
        return "changed by hand";
    case EffectState::Half:
        return "half";
    case EffectState::Nested:
        return "nested";
    }
    return {};
}

std::string_view NameOf(PartPlace place)
{
    switch (place) {
    case PartPlace::Head:
        return "head";
    case PartPlace::Body:
        return "body";
    case PartPlace::OnLoad:
        return "onload";
    case PartPlace::OnUnload:
        return "onunload";
    case PartPlace::PageScript:
        return "page script";
    }
    return {};
}

std::string Json(const PageLines& numbers, const EffectInPage& effect)
{
    std::vector<std::string> parts;
    for (const EffectPart& part : effect.Parts)
        parts.push_back(JsonObject({{"place", JsonText(FromUtf8(NameOf(part.Place)))},
                                    {"line", ToUtf8(numbers.LineOf(part.Span.Begin))}}));
    return JsonObject({{"name", JsonText(effect.Name)},
                       {"title", JsonText(TitleOf(effect))},
                       {"state", JsonText(FromUtf8(NameOf(effect.State)))},
                       {"needsPageScript", effect.NeedsPageScript ? "true" : "false"},
                       {"parts", JsonArray(parts)}});
}

std::string Json(const Text& path, std::string_view page, const std::vector<EffectInPage>& effects)
{
    const PageLines numbers(page);
    std::vector<std::string> listed;
    for (const EffectInPage& effect : effects)
        listed.push_back(Json(numbers, effect));
    return JsonObject({{"page", JsonText(path)},
                       {"pageScript", HasPageScript(page) ? "true" : "false"},
                       {"effects", JsonArray(listed)}});
}

std::string Lines(const Text& path, std::string_view page, const std::vector<EffectInPage>& effects)
{
    const PageLines numbers(page);
    std::string lines;
    for (const EffectInPage& effect : effects) {
        lines += ToUtf8(Join(
            {path, u":", numbers.LineOf(effect.Parts.front().Span.Begin), u": ", TitleOf(effect)}));
        if (effect.State != EffectState::Whole)
            lines.append(" (").append(NameOf(effect.State)).append(")");
        lines += '\n';
    }
    return lines;
}

} // namespace

CliExit ListPages(const CliRequest& request, CliWorld& world)
{
    const bool isJson = request.Has("--json");
    std::string_view between = "[\n";
    PageRun run(world, request);
    const CliExit exit = run.Over(0, [&](const Text& path, FileStore& files, CliDialogs&) {
        const auto read = files.Read(path);
        if (const Fault* fault = FaultIn(read))
            return PageEnd{PageEnd::As::Failed, Text(Words(*fault))};
        const std::string& page = ValueIn(read);
        const auto effects = EffectsIn(page);
        if (isJson)
            world.Out(std::string(std::exchange(between, ",\n")) + Json(path, page, effects));
        else
            world.Out(Lines(path, page, effects));
        return PageEnd();
    });
    if (isJson)
        world.Out(between == "[\n" ? "[]\n" : "\n]\n");
    return exit;
}

} // namespace orvane
