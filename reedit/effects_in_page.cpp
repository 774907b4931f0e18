#include "reedit/effects_in_page.h"

#include "core/catalogue.h"
#include "core/effect_markers.h"
#include "insertion/page_script.h"
#include "reedit/body_calls.h"
#include "reedit/effect_pieces.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane {

namespace {

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

    void TakeCall(const BodyCall& call)
    {
        const std::string_view code = CodeIn(m_page, call.Call);
        const EffectPart part{
            call.Event == BodyEvent::OnLoad ? PartPlace::OnLoad : PartPlace::OnUnload, call.Call};
        const auto owner = m_functions.find(FunctionOf(code));
        const auto popup = m_popups.find(code);
        if (owner != m_functions.end())
            m_effects[owner->second].Parts.push_back(part);
        else if (popup != m_popups.end())
            m_effects[popup->second].Parts.push_back(part);
        else if (IsPopupWindow(code))
            NoteScript(AddEffect(Text(RowOf(EffectKind::PopupWindow).MarkerName), part), code);
    }

    std::vector<EffectInPage> TakeEffects()
    {
        const auto place = [](const EffectPart& part) { return part.Span.Begin; };
        for (EffectInPage& effect : m_effects)
            if (!std::ranges::is_sorted(effect.Parts, {}, place))
                std::ranges::sort(effect.Parts, {}, place);
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
        if (isWhole && std::ranges::count(effect.Kinds, EffectKind::PopupWindow) != 0)
            AddPopups(code, number);
    }

    /// The block of a popup that opens by itself repeats its call, in a BODY tag of its own.
    void AddPopups(std::string_view block, std::size_t number)
    {
        if (const auto tag = BodyTag(block))
            for (const BodyCall& call : CallsIn(block, *tag))
                m_popups.emplace(CodeIn(block, call.Call), number);
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
    std::map<std::string_view, std::size_t> m_popups; ///< by the call
};

} // namespace

std::vector<EffectInPage> EffectsIn(std::string_view page)
{
    PagePieces pieces = PiecesIn(page);
    EffectReader effects(page);
    effects.TakePieces(std::move(pieces.Pieces));
    if (pieces.BodyTag)
        // Not a list of them: a page can make millions of calls that are no effect's.
        ForEachCall(page, *pieces.BodyTag, [&](const BodyCall& call) { effects.TakeCall(call); });
    return effects.TakeEffects();
}

bool CanBeTouched(const EffectInPage& effect)
{
    return effect.State == EffectState::Whole || effect.State == EffectState::Changed;
}

} // namespace orvane
