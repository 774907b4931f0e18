#include "reedit/placing.h"

#include "core/effect_markers.h"
#include "insertion/page_encoding.h"
#include "insertion/page_script.h"
#include "reedit/effect_cuts.h"
#include "reedit/taking_out.h"

#include <algorithm>
#include <optional>

namespace orvane {

namespace {

Text NameOf(const FinishedPayload& payload)
{
    return NameInBeginMarker(payload.BeginMarker).value_or(Text());
}

/// The payload's texts in the page's encoding.
struct PlacedCode
{
    PlacedCode(std::string_view page, const EffectPayload& effect)
    {
        const PageEncoding encoding = EncodingOf(page);
        HEAD = EncodeForPage(effect.HEADHTML, encoding);
        BODY = EncodeForPage(effect.BODYHTML, encoding);
        OnLoad = EncodeForAttribute(Join({effect.OnLoadFunc, effect.OnLoadArgs}), encoding);
        OnUnload = EncodeForAttribute(Join({effect.OnUnloadFunc, effect.OnUnloadArgs}), encoding);
    }

    std::string HEAD;
    std::string BODY;
    std::string OnLoad;
    std::string OnUnload;
};

/// What follows code that is put into a page.
enum class Ending
{
    None,
    Line,
};

/// Collects what is put into a page.
class Placing
{
public:
    Placing(std::string_view page, const FinishedPayload& payload)
        : m_page(page), m_payload(payload), m_code(page, payload.Effect), m_marks(LandmarksOf(page))
    {
    }

    const Landmarks& Marks() const { return m_marks; }
    const PlacedCode& Code() const { return m_code; }

    /// Whether the page lacks the BODY tag that the calls need.
    bool LacksBodyTag() const
    {
        return !m_marks.BodyTag && !(m_code.OnLoad.empty() && m_code.OnUnload.empty());
    }

    void PutHead(std::size_t otherwise, Ending ending)
    {
        std::size_t at = otherwise;
        if (m_marks.HeadEnd)
            at = m_marks.HeadEnd->Begin;
        else if (m_marks.HeadTag)
            at = m_marks.HeadTag->End;
        else if (m_marks.BodyTag)
            at = m_marks.BodyTag->Begin;
        Put({at, at}, m_code.HEAD, ending);
    }

    void PutBody(std::size_t at, Ending ending) { Put({at, at}, m_code.BODY, ending); }

    /// Puts the code there with the line ends of what it replaces, or else of the page.
    void Put(CodeSpan old, std::string_view code, Ending ending)
    {
        if (code.empty())
            return;
        const std::string_view replaced = CodeIn(m_page, old);
        const bool hasOwn = replaced.find_first_of("\r\n") != std::string_view::npos;
        const std::string_view lineEnd = LineEndOf(hasOwn ? replaced : m_page);
        const std::string put = ReplaceAll(std::string(code), "\r\n", lineEnd);
        m_splices.push_back({old, ending == Ending::Line ? Join({put, lineEnd}) : put});
    }

    void Put(const std::vector<Splice>& splices)
    {
        m_splices.insert(m_splices.end(), splices.begin(), splices.end());
    }

    /// Puts the calls in, in place of these.
    void PutCalls(const std::vector<BodyCall>& old)
    {
        PutCall(BodyEvent::OnLoad, m_code.OnLoad, old);
        PutCall(BodyEvent::OnUnload, m_code.OnUnload, old);
    }

    std::string Page() const
    {
        std::string page = Spliced(m_page, m_splices);
        if (m_payload.WantsPageScript)
            return WithPageScriptFor(page, m_payload);
        RenewPageScript(page, true);
        return page;
    }

private:
    void PutCall(BodyEvent event, std::string_view call, const std::vector<BodyCall>& old)
    {
        bool isPut = call.empty();
        for (const BodyCall& own : old) {
            if (own.Event != event)
                continue;
            if (isPut)
                m_splices.push_back({CutOf(m_page, own), {}});
            else
                m_splices.push_back(ReplaceCall(m_page, own, call));
            isPut = true;
        }
        if (!isPut)
            m_splices.push_back(JoinCall(m_page, *m_marks.BodyTag, event, call));
    }

    std::string_view m_page;
    const FinishedPayload& m_payload;
    PlacedCode m_code;
    Landmarks m_marks;
    std::vector<Splice> m_splices;
};

/// Whether taking one effect of that name out of the new page gives the old one.
bool CanBeUndone(std::string_view page, const std::string& placed, TextView name)
{
    return std::ranges::any_of(EffectsIn(placed), [&](const EffectInPage& effect) {
        return effect.Name == name && Without(placed, effect) == page;
    });
}

} // namespace

std::optional<EffectInPage> SharingHead(const std::vector<EffectInPage>& effects,
                                        const FinishedPayload& payload)
{
    const Text name = NameOf(payload);
    const auto found = std::ranges::find_if(effects, [&](const EffectInPage& effect) {
        return CanBeTouched(effect) && EqualIgnoringCase(effect.Name, name) &&
               effect.Parts.front().Place == PartPlace::Head;
    });
    if (payload.Effect.HEADHTML.empty() || found == effects.end())
        return std::nullopt;
    return *found;
}

PlacedPage WithEffect(std::string_view page, std::size_t at, const FinishedPayload& payload)
{
    if (IsTwoByteText(page))
        return NoPlace::TwoByteText;
    const Placing bare(page, payload);
    if (bare.LacksBodyTag())
        return NoPlace::NoBodyTag;
    const auto effects = EffectsIn(page);
    if (const auto reason = WhyNotAt(page, at, bare.Marks(), effects))
        return *reason;
    const auto sharing = SharingHead(effects, payload);
    const auto placed = [&](Ending ending) {
        Placing placing = bare;
        if (sharing)
            placing.Put(sharing->Parts.front().Span, placing.Code().HEAD, Ending::None);
        else
            placing.PutHead(at, ending);
        placing.PutBody(at, ending);
        placing.PutCalls(sharing ? CallsOf(page, *sharing) : std::vector<BodyCall>());
        return placing.Page();
    };
    std::string result = placed(Ending::Line);
    // By chance it may stand as if an insertion had put it there.
    const Text name = NameOf(payload);
    if (!sharing && !CanBeUndone(page, result, name))
        if (std::string other = placed(Ending::None); CanBeUndone(page, other, name))
            return other;
    return result;
}

PlacedPage WithReplaced(std::string_view page, const EffectInPage& effect,
                        const FinishedPayload& payload)
{
    Placing placing(page, payload);
    if (placing.LacksBodyTag())
        return NoPlace::NoBodyTag;
    const PlacedCode& code = placing.Code();
    std::vector<EffectPart> cut;
    for (const PartPlace place : {PartPlace::Head, PartPlace::Body}) {
        const std::string& put = place == PartPlace::Head ? code.HEAD : code.BODY;
        std::optional<std::string_view> first;
        for (const EffectPart& part : BlocksOf(effect)) {
            if (part.Place != place)
                continue;
            const std::string_view old = CodeIn(page, part.Span);
            if (put.empty())
                cut.push_back(part);
            else if (old == first.value_or(old))
                placing.Put(part.Span, put, Ending::None);
            first = first.value_or(old);
        }
        if (!first && place == PartPlace::Head)
            placing.PutHead(TopOf(page), Ending::Line);
        else if (!first)
            placing.PutBody(TopOf(page), Ending::Line);
    }
    placing.Put(CutsOfBlocks(page, cut));
    placing.PutCalls(CallsOf(page, effect));
    return placing.Page();
}

} // namespace orvane
