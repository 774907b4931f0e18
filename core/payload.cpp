#include "core/payload.h"

#include "core/catalogue.h"
#include "core/effect_markers.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

Text Attribute(TextView name, TextView function, TextView arguments)
{
    if (function.empty())
        return {};
    return Join({u" ", name, u"=\"", function, arguments, u"\" "});
}

bool HasListedFile(const RequiredFiles& files)
{
    return std::any_of(files.RequiredFileNames.begin(), files.RequiredFileNames.end(),
                       [](const Text& name) { return !name.empty(); });
}

bool NeedsFiles(const EffectPayload& effect, FilesNeeded needed)
{
    if (effect.IsBlock)
        return HasListedFile(effect.Required);
    return needed == FilesNeeded::Always ||
           (needed == FilesNeeded::WhenListed && HasListedFile(effect.Required));
}

} // namespace

bool RunsByItself(const EffectPayload& effect)
{
    return effect.IsBlock || RowOf(effect.Kind).RunsByItself;
}

FinishedPayload Finish(const EffectPayload& effect)
{
    FinishedPayload finished{.Effect = effect};
    EffectMarkers markers;
    if (const CatalogueRow* row = FindRow(effect.Kind)) {
        markers = MarkersOf(row->MarkerName);
        finished.NeedsFiles = NeedsFiles(effect, row->Files);
        finished.ScriptedHelp = row->ScriptedHelp;
        finished.ReplaceInBody = row->ReplaceInBody;
    }
    for (Text* code : {&finished.Effect.HEADHTML, &finished.Effect.BODYHTML})
        *code = Marked(markers, *code);
    finished.BeginMarker = std::move(markers.Begin);
    finished.EndMarker = std::move(markers.End);
    finished.BODYAttribute = Attribute(u"onLoad", effect.OnLoadFunc, effect.OnLoadArgs) +
                             Attribute(u"onUnload", effect.OnUnloadFunc, effect.OnUnloadArgs);
    finished.PreviewCode = Join({finished.Effect.HEADHTML, lineEnd, finished.Effect.BODYHTML});
    return finished;
}

} // namespace orvane
