#include "program/recipe_files.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "effects/recipe.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t mostFaultsShown = 8;

FileRequest RecipeRequest(TextView title)
{
    return {.Title = Text(title),
            .Filter = u"Recipes (*.ovr)|*.ovr|All Files (*.*)|*.*",
            .Purpose = FolderPurpose::Recipes};
}

/// What is wrong with the recipe, a line each.
Text WordsFor(TextView path, const std::vector<RecipeFault>& faults)
{
    Text words = Join({u"Orvane cannot open the recipe ", path, u"."});
    for (std::size_t i = 0; i < std::min(faults.size(), mostFaultsShown); ++i)
        words += Join({i == 0 ? u"\r\n\r\n" : u"\r\n", faults[i].Line == 0 ? u"" : u"Line ",
                       LineOf(faults[i])});
    if (faults.size() > mostFaultsShown)
        words += u"\r\n...";
    return words;
}

} // namespace

std::optional<AnyEffect> OpenRecipe(Workbench& bench, Text path)
{
    if (path.empty())
        path = bench.Dialogs.OpenFile(RecipeRequest(u"Open recipe")).value_or(Text());
    if (path.empty())
        return std::nullopt;
    auto read = ReadRecipeFile(bench.Files, path);
    if (auto* effect = std::get_if<AnyEffect>(&read))
        return std::move(*effect);
    bench.Dialogs.Say(WordsFor(path, std::get<std::vector<RecipeFault>>(read)));
    return std::nullopt;
}

std::optional<Text> SaveAsRecipe(Workbench& bench, const AnyEffect& effect, const Text& path)
{
    FileRequest request = RecipeRequest(u"Save as recipe");
    request.InitDir = FolderOf(path);
    request.FileName =
        path.empty() ? Join({RowOf(effect.Kind()).Title, recipeEnding}) : Text(GetFileName(path));
    auto picked = bench.Dialogs.SaveFile(request);
    if (!picked)
        return std::nullopt;
    const Done done = bench.Files.Replace(*picked, ToUtf8(WriteRecipe(effect, FolderOf(*picked))));
    if (const Fault* fault = FaultIn(done)) {
        bench.Dialogs.Say(Words(*fault));
        return std::nullopt;
    }
    return picked;
}

} // namespace orvane
