#include "preview/preview_note.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "insertion/page_files.h"

#include <algorithm>

namespace orvane {

namespace {

/// What the pane says of every effect whose code holds a mark, in any case.
struct MarkNote
{
    TextView Mark;
    TextView Words;
};
constexpr MarkNote markNotes[] = {
    {u"<APPLET", u"Today's browsers do not run Java applets.  Your page is right; visitors see the "
                 u"effect in a browser that runs them."},
};

using FileQuestion = std::function<bool(const Text& name)>;

/// The files that the effect needs beside its page and that do not lie there, with commas between.
Text MissingNames(const EffectPayload& effect, const FileQuestion& isThere)
{
    std::vector<Text> names;
    const auto add = [&](const Text& needed) {
        const auto name = NameBesidePage(needed);
        if (name && !isThere(*name))
            names.push_back(*name);
    };
    std::ranges::for_each(effect.Required.RequiredFileNames, add);
    std::ranges::for_each(effect.SupportFiles, add);
    return Listed(names);
}

void AddSentence(Text& note, TextView words)
{
    if (!note.empty())
        note += u"  ";
    note += words;
}

/// The note, which begins its list of missing files with `missing`.
Text NoteOf(const FinishedPayload& payload, const FileQuestion& isThere, TextView missing)
{
    const EffectPayload& effect = payload.Effect;
    Text note;
    for (const auto& [mark, words] : markNotes)
        if (!payload.WantsPageScript && FindIgnoringCase(effect.BODYHTML, mark) != 0)
            AddSentence(note, words);
    if (const Text names = MissingNames(effect, isThere); !names.empty())
        AddSentence(note, Join({missing, names, u"."}));
    return note;
}

} // namespace

Text PreviewNote(const FinishedPayload& payload, const FileStore& files, TextView folder)
{
    return NoteOf(
        payload, [&](const Text& name) { return files.FileExists(PathIn(folder, name)); },
        Join({u"Not found in ", folder, u": "}));
}

Text PreviewNote(const FinishedPayload& payload, const FileQuestion& isThere)
{
    return NoteOf(payload, isThere, u"Not found: ");
}

bool RunsInStatus(const FinishedPayload& payload)
{
    return !payload.WantsPageScript && RowOf(payload.Effect.Kind).ShowsInStatusLine;
}

} // namespace orvane
