#include "reedit/effects_in_page.h"

#include "core/catalogue.h"
#include "core/effect_markers.h"
#include "insertion/page_script.h"
#include "reedit/body_calls.h"

#include <algorithm>
#include <map>
#include <optional>

namespace orvane {

namespace {

/// A comment with which an effect's code begins or ends.
struct Marker
{
    Text Name;
    CodeSpan Span;
    bool IsBegin;
    bool IsInHead;
};

/// What stands in a page, as a browser sees it.
struct PageMarks
{
    std::vector<Marker> Markers;
    std::optional<CodeSpan> BodyTag;
};

/// Most comments of a page are none of these, which is told by their last words.
void AddMarker(std::vector<Marker>& markers, std::string_view page, CodeSpan span, bool isInHead)
{
    constexpr std::string_view tail = " ***** -->";
    const std::string_view bytes = CodeIn(page, span);
    if (!bytes.ends_with(tail))
        return;
    const Text comment = FromBytes(bytes);
    if (auto begin = NameInBeginMarker(comment))
        markers.push_back({std::move(*begin), span, true, isInHead});
    else if (auto end = NameInEndMarker(comment))
        markers.push_back({std::move(*end), span, false, isInHead});
}

PageMarks MarksIn(std::string_view page)
{
    PageMarks marks;
    bool hasSections = false;
    bool isInHead = true;
    for (Markup markup = NextMarkup(page, 0); markup.Whole.Begin < page.size();
         markup = NextMarkup(page, markup.Next)) {
        const std::size_t at = markup.Whole.Begin;
        if (page[at + 1] == '!') {
            AddMarker(marks.Markers, page, markup.Whole, isInHead);
            continue;
        }
        // A browser drops a tag without its end.
        const bool isBody = !marks.BodyTag && IsTag(page, at, "<body");
        if (page[markup.Whole.End - 1] != '>' ||
            (!isBody &&
             (!isInHead || !(IsTag(page, at, "</head") || IsTag(page, at, "<frameset")))))
            continue;
        hasSections = true;
        isInHead = false;
        if (isBody)
            marks.BodyTag = markup.Whole;
    }
    // All that a page without these tags shows is its body.
    for (Marker& marker : marks.Markers)
        marker.IsInHead = marker.IsInHead && hasSections;
    return marks;
}

/// An effect's code, or one marker that lacks the other.
struct Piece
{
    Text Name;
    CodeSpan Span;
    bool IsInHead;
    EffectState State = EffectState::Half;
    bool IsOpen = false;
};

/// Finds the marker that ends the code of an earlier one; each is looked at a few times at most.
class PieceReader
{
public:
    void Take(const Marker& marker)
    {
        auto& begun = m_openOf[ToLower(marker.Name)];
        while (!begun.empty() && !m_pieces[begun.back()].IsOpen)
            begun.pop_back();
        if (!marker.IsBegin && !begun.empty())
            return Close(begun.back(), marker.Span.End);
        m_pieces.push_back({marker.Name, marker.Span, marker.IsInHead});
        if (!marker.IsBegin)
            return;
        m_pieces.back().IsOpen = true;
        m_open.push_back(m_pieces.size() - 1);
        begun.push_back(m_pieces.size() - 1);
    }

    std::vector<Piece> TakePieces()
    {
        std::size_t nestedEnd = 0;
        for (Piece& piece : m_pieces) {
            if (piece.Span.Begin < nestedEnd && piece.State == EffectState::Whole)
                piece.State = EffectState::Nested;
            if (piece.State == EffectState::Nested)
                nestedEnd = std::max(nestedEnd, piece.Span.End);
        }
        return std::move(m_pieces);
    }

private:
    void Close(std::size_t number, std::size_t end)
    {
        Piece& piece = m_pieces[number];
        piece.State = number + 1 == m_pieces.size() ? EffectState::Whole : EffectState::Nested;
        piece.Span.End = end;
        while (piece.IsOpen) {
            m_pieces[m_open.back()].IsOpen = false;
            m_open.pop_back();
        }
    }

    std::vector<Piece> m_pieces;
    std::vector<std::size_t> m_open;
    std::map<Text, std::vector<std::size_t>> m_openOf;
};

/// Whether the block's first and last line are as this program writes them; editors change the line
/// ends between them.
bool IsAsWritten(std::string_view block, TextView name)
{
    const EffectMarkers markers = MarkersOf(name);
    const std::string begin = ToBytes(markers.Begin);
    return block.starts_with(begin) && block.ends_with(ToBytes(markers.End)) &&
           LineEndAt(block, begin.size()) != 0;
}

/// The effects whose comments have that name.
std::vector<EffectKind> KindsOf(TextView name)
{
    std::vector<EffectKind> kinds;
    for (const CatalogueRow& row : Catalogue())
        if (EqualIgnoringCase(row.MarkerName, name))
            kinds.push_back(row.Kind);
    return kinds;
}

bool CanNeedPageScript(const std::vector<EffectKind>& kinds)
{
    return kinds.empty() ||
           std::ranges::any_of(kinds, [](EffectKind kind) { return !RowOf(kind).RunsByItself; });
}

/// The functions that scripts of effects declare, and the effect of each.
using Functions = std::map<std::string_view, std::size_t>;

void AddFunctions(Functions& functions, std::string_view code, std::size_t effect)
{
    constexpr std::string_view keyword = "function ";
    for (std::size_t at = 0; (at = code.find(keyword, at)) != std::string_view::npos;) {
        at += keyword.size();
        const std::size_t end = std::min(code.find_first_of("( \t\r\n", at), code.size());
        functions.emplace(CodeIn(code, {at, end}), effect);
    }
}

/// Collects the effects of a page.
class EffectReader
{
public:
    explicit EffectReader(std::string_view page) : m_page(page) {}

    void TakePieces(std::vector<Piece> pieces)
    {
        for (const Piece& piece : pieces)
            if (piece.State == EffectState::Whole && piece.IsInHead)
                m_headEffects.emplace(ToLower(piece.Name), none);
        for (Piece& piece : pieces)
            TakePiece(std::move(piece));
    }

    void TakeCalls(const std::vector<BodyCall>& calls)
    {
        for (const BodyCall& call : calls) {
            const std::string_view code = CodeIn(m_page, call.Call);
            const EffectPart part{call.Event == BodyEvent::OnLoad ? PartPlace::OnLoad
                                                                  : PartPlace::OnUnload,
                                  call.Call};
            const auto owner = m_functions.find(FunctionOf(code));
            if (owner != m_functions.end())
                m_effects[owner->second].Parts.push_back(part);
            else if (IsPopupWindow(code))
                NoteScript(AddEffect(Text(RowOf(EffectKind::PopupWindow).MarkerName), part), code);
        }
    }

    std::vector<EffectInPage> TakeEffects()
    {
        for (EffectInPage& effect : m_effects)
            std::ranges::sort(effect.Parts, {}, [](const auto& part) { return part.Span.Begin; });
        std::ranges::stable_sort(m_effects, {}, [](const EffectInPage& effect) {
            return effect.Parts.front().Span.Begin;
        });
        if (const auto lines = FindPageScriptLines(m_page))
            for (EffectInPage& effect : m_effects)
                if (effect.NeedsPageScript)
                    effect.Parts.push_back({PartPlace::PageScript, lines->Whole});
        return std::move(m_effects);
    }

private:
    static constexpr std::size_t none = std::string_view::npos;

    void TakePiece(Piece piece)
    {
        const EffectPart part{piece.IsInHead ? PartPlace::Head : PartPlace::Body, piece.Span};
        const std::string_view code = CodeIn(m_page, piece.Span);
        const bool isWhole = piece.State == EffectState::Whole;
        const auto shared = isWhole ? m_headEffects.find(ToLower(piece.Name)) : m_headEffects.end();
        std::size_t number = shared == m_headEffects.end() ? none : shared->second;
        if (number == none)
            number = AddEffect(piece.Name, part);
        else
            m_effects[number].Parts.push_back(part);
        if (shared != m_headEffects.end())
            shared->second = number;
        EffectInPage& effect = m_effects[number];
        if (!isWhole)
            effect.State = piece.State;
        else if (!IsAsWritten(code, piece.Name))
            effect.State = EffectState::Changed;
        NoteScript(number, code);
        if (isWhole)
            AddFunctions(m_functions, code, number);
    }

    /// Notes whether this code runs by itself, as blocks do, which bring a script of their own.
    void NoteScript(std::size_t number, std::string_view code)
    {
        EffectInPage& effect = m_effects[number];
        if (CanNeedPageScript(effect.Kinds) &&
            code.find(" data-orvane=\"") == std::string_view::npos)
            effect.NeedsPageScript = true;
    }

    std::size_t AddEffect(const Text& name, EffectPart part)
    {
        m_effects.push_back({.Name = name, .Kinds = KindsOf(name), .Parts = {part}});
        return m_effects.size() - 1;
    }

    std::string_view m_page;
    std::vector<EffectInPage> m_effects;
    std::map<Text, std::size_t> m_headEffects; ///< by name, once the first block is read
    Functions m_functions;
};

} // namespace

std::vector<EffectInPage> EffectsIn(std::string_view page)
{
    const PageMarks marks = MarksIn(page);
    PieceReader pieces;
    for (const Marker& marker : marks.Markers)
        pieces.Take(marker);
    EffectReader effects(page);
    effects.TakePieces(pieces.TakePieces());
    if (marks.BodyTag)
        effects.TakeCalls(CallsIn(page, *marks.BodyTag));
    return effects.TakeEffects();
}

bool CanBeTouched(const EffectInPage& effect)
{
    return effect.State == EffectState::Whole || effect.State == EffectState::Changed;
}

} // namespace orvane
