#include "preview/preview_note.h"

#include "core/catalogue.h"
#include "core/file_names.h"

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

constexpr TextView runsInStatusLine =
    u"This effect runs in the browser's status line.  See the framed line below the page.";

/// The files that the effect needs beside its page and that do not lie there, with commas between.
Text MissingNames(const EffectPayload& effect, const FileStore& files, TextView folder)
{
    Text names;
    const auto add = [&](const Text& name) {
        if (!name.empty() && !files.FileExists(PathIn(folder, name)))
            names += (names.empty() ? u"" : u", ") + name;
    };
    for (const Text& name : effect.Required.Names)
        add(name);
    for (const Text& name : effect.SupportFiles)
        add(name);
    return names;
}

void AddSentence(Text& note, TextView words)
{
    if (!note.empty())
        note += u"  ";
    note += words;
}

} // namespace

Text PreviewNote(const FinishedPayload& payload, const FileStore& files, TextView folder)
{
    const EffectPayload& effect = payload.Effect;
    Text note;
    for (const auto& [mark, words] : markNotes)
        if (!payload.RunsToday && FindIgnoringCase(effect.BODYHTML, mark) != 0)
            AddSentence(note, words);
    if (RunsInStatus(payload))
        AddSentence(note, runsInStatusLine);
    if (const Text missing = MissingNames(effect, files, folder); !missing.empty())
        AddSentence(note, Join({u"Not found in ", folder, u": ", missing, u"."}));
    return note;
}

bool RunsInStatus(const FinishedPayload& payload)
{
    return !payload.RunsToday && RowOf(payload.Effect.Kind).ShowsInStatusLine;
}

} // namespace orvane
