#include "preview/preview_note.h"

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

/// What the pane says of one effect.
struct KindNote
{
    EffectKind Kind;
    bool RunsInStatus;
    TextView Words;
};
constexpr KindNote kindNotes[] = {
    {EffectKind::StatusBarTicker, true,
     u"This effect runs in the browser's status line.  See the framed line below the page."},
};

const KindNote* NoteOf(EffectKind kind)
{
    for (const KindNote& note : kindNotes)
        if (note.Kind == kind)
            return &note;
    return nullptr;
}

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
    if (const KindNote* kind = NoteOf(effect.Kind); kind != nullptr && !payload.RunsToday)
        AddSentence(note, kind->Words);
    if (const Text missing = MissingNames(effect, files, folder); !missing.empty())
        AddSentence(note, Join({u"Not found in ", folder, u": ", missing, u"."}));
    return note;
}

bool RunsInStatus(EffectKind kind)
{
    const KindNote* note = NoteOf(kind);
    return note != nullptr && note->RunsInStatus;
}

} // namespace orvane
