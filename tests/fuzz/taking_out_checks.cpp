#include "tests/fuzz/taking_out_checks.h"

#include "insertion/page_edit.h"
#include "insertion/page_script.h"
#include "reedit/effect_cuts.h"
#include "reedit/taking_out.h"
#include "tests/fuzz/browser_sight.h"
#include "tests/fuzz/fuzz_input.h"

#include <algorithm>

namespace orvane::testing {

namespace {

const std::string begin = "<!-- ***** Begin:Varlo Personalize special effect ***** -->";
const std::string end = "<!-- ***** End:Varlo Personalize special effect ***** -->";
const std::string inserted = " onload=\"go(2)\" ";

std::vector<FinishedPayload> Payloads()
{
    EffectPayload head{.Kind = EffectKind::Personalize,
                       .HEADHTML = u"<SCRIPT>function go(n) {}</SCRIPT>\r\n",
                       .OnLoadFunc = u"go",
                       .OnLoadArgs = u"(2)"};
    EffectPayload body{.Kind = EffectKind::Personalize, .BODYHTML = u"<P>b</P>"};
    FinishedPayload replaced = Finish(body);
    replaced.ReplaceInBody = true;
    return {Finish(head), Finish(body), replaced};
}

/// The page after an insertion; `isAsked` tells whether the effect stood there before.
std::string Edited(const std::string& page, const FinishedPayload& payload, bool* isAsked = nullptr)
{
    const PageEdit edit = EditPage(page, payload, [=] {
        if (isAsked != nullptr)
            *isAsked = true;
        return true;
    });
    const auto* edited = std::get_if<EditedPage>(&edit);
    return edited ? edited->Bytes : page;
}

bool Has(const std::string& page, const std::string& words)
{
    return FindIgnoringCase(page, words) != 0;
}

/// Whether these bytes are what insertions write around a block: line ends, and one character in
/// front of each.
bool IsFrame(std::string_view bytes)
{
    while (bytes.ends_with("\r\n"))
        bytes.remove_suffix(bytes.size() > 2 ? 3 : 2);
    return bytes.empty() || bytes == "\r" || bytes == "\n";
}

void CheckCut(const std::string& page, const Splice& cut, const EffectInPage& effect)
{
    Require(cut.Old.Begin < cut.Old.End && cut.Old.End <= page.size(), "a cut is in the page");
    if (!cut.New.empty())
        return Require(cut.Old.End - cut.Old.Begin == 1 && cut.New.size() == 1,
                       "nothing but a doubled character is replaced");
    for (const EffectPart& part : effect.Parts) {
        if (part.Span.End <= cut.Old.Begin || part.Span.Begin >= cut.Old.End)
            continue;
        const auto front = CodeIn(page, {cut.Old.Begin, part.Span.Begin});
        const auto back = CodeIn(page, {part.Span.End, cut.Old.End});
        if (part.Place == PartPlace::Head || part.Place == PartPlace::Body)
            Require(IsFrame(front) && back.size() <= 2 && IsFrame(back), "a block goes alone");
        return;
    }
    Require(IsFrame(CodeIn(page, cut.Old)), "what goes elsewhere is line ends");
}

void CheckEffect(const std::string& page, const EffectInPage& effect)
{
    for (const EffectPart& part : effect.Parts) {
        Require(part.Span.Begin < part.Span.End && part.Span.End <= page.size(),
                "a part is in the page");
        const auto code = CodeIn(page, part.Span);
        Require(part.Place == PartPlace::OnLoad || part.Place == PartPlace::OnUnload ||
                    (code.starts_with("<!--") && code.ends_with("-->")),
                "a block begins and ends with a comment");
    }
    const std::string rest = Without(page, effect);
    if (!CanBeTouched(effect))
        return Require(rest == page, "half an effect stays");
    for (const Splice& cut : CutsOf(page, effect))
        CheckCut(page, cut, effect);
    const auto isOwn = [&](const BodyCall& call) {
        return std::ranges::any_of(effect.Parts,
                                   [&](const EffectPart& part) { return part.Span == call.Call; });
    };
    std::vector<std::string_view> others, left;
    const auto tag = BodyTag(page), tagLeft = BodyTag(rest);
    for (const EffectPart& part : effect.Parts)
        if (tag && part.Span.Begin < tag->Begin && tag->Begin < part.Span.End)
            return;
    Require(tag.has_value() == tagLeft.has_value(), "the BODY tag stays");
    if (!tag)
        return;
    for (const BodyCall& call : CallsIn(page, *tag))
        if (!isOwn(call))
            others.push_back(CodeIn(page, call.Call));
    for (const BodyCall& call : CallsIn(rest, *tagLeft))
        left.push_back(CodeIn(rest, call.Call));
    Require(others == left, "what else the BODY tag calls stays");
}

/// The page without the effects that hold this code. An attribute that went into a tag which no
/// browser sees is not in the list.
std::string WithoutAll(std::string page, const std::string& code)
{
    for (;;) {
        const auto effects = EffectsIn(page);
        const auto first = std::ranges::find_if(effects, [&](const EffectInPage& effect) {
            return CanBeTouched(effect) && std::ranges::any_of(effect.Parts, [&](auto& part) {
                       return CodeIn(page, part.Span) == code;
                   });
        });
        if (first == effects.end())
            return ReplaceAll(page, inserted, "");
        page = Without(page, *first);
    }
}

void CheckInsertion(const std::string& page, const FinishedPayload& payload)
{
    bool isAsked = false;
    const std::string once = Edited(page, payload, &isAsked);
    if (once == page || isAsked)
        return;
    Require(WithoutInsertion(once, payload) == page, "taking out undoes an insertion");
    const std::string code = ToBytes(payload.Effect.HEADHTML + payload.Effect.BODYHTML);
    const auto isSeen = [&](const std::string& edited) {
        std::size_t seen = 0;
        for (const EffectInPage& effect : EffectsIn(edited))
            for (const EffectPart& part : effect.Parts)
                seen += CodeIn(edited, part.Span) == code && CanBeTouched(effect) ? code.size() : 0;
        return seen != 0 && ReplaceAll(edited, code, "").size() + seen == edited.size();
    };
    if (isSeen(once))
        Require(WithoutAll(once, code) == page, "the list takes out all of an insertion");
    const std::string twice = Edited(once, payload);
    const bool isReplaced = payload.ReplaceInBody || !payload.Effect.HEADHTML.empty();
    if (twice == once)
        return;
    Require(WithoutInsertion(twice, payload) == (isReplaced ? page : once),
            "taking out undoes a second insertion");
    // Where both tags end at one ">", the page does not tell which of them the runs meant.
    const auto behind = [&](std::string_view tag) {
        return Find(page, ">", FindIgnoringCase(page, tag));
    };
    if (isSeen(twice) && behind("<head") != behind("<body"))
        Require(WithoutAll(twice, code) == page, "the list takes out all of two insertions");
}

} // namespace

void CheckTakingOut(const std::string& page)
{
    for (const EffectInPage& effect : EffectsIn(page))
        CheckEffect(page, effect);
    static const std::vector<FinishedPayload> payloads = Payloads();
    // Lines of the page script that nothing needed before go with the last effect that does.
    if (!Has(page, begin) && !Has(page, "go(") && !HasPageScript(page))
        for (const FinishedPayload& payload : payloads)
            CheckInsertion(page, payload);
}

void CheckSight(const std::string& page)
{
    const std::string bytes = Edited(page, Payloads()[0]);
    for (const std::string& shown : {page, bytes}) {
        std::vector<CodeSpan> pairs;
        std::vector<std::size_t> begins, ends;
        for (const auto& [from, to] : CommentsSeen(shown)) {
            const std::string comment = shown.substr(from, to - from);
            if (comment == end && !begins.empty() &&
                begins.back() > (ends.empty() ? 0 : ends.back()))
                pairs.push_back({begins.back(), to});
            if (comment == begin)
                begins.push_back(from);
            if (comment == end)
                ends.push_back(to);
        }
        std::vector<CodeSpan> whole;
        for (const EffectInPage& effect : EffectsIn(shown))
            for (const EffectPart& part : effect.Parts)
                if (part.Place == PartPlace::Head || part.Place == PartPlace::Body)
                    whole.push_back(part.Span);
        for (const CodeSpan pair : pairs)
            Require(std::ranges::count(whole, pair) == 1, "what a browser sees is in the list");
        for (const CodeSpan span : whole)
            Require(std::ranges::count(begins, span.Begin) + std::ranges::count(ends, span.End) > 0,
                    "what is in the list is seen by a browser");
    }
}

int CheckAllPages(int tokens)
{
    const std::string words[] = {"<head",   ">",        "</head", "<body", "</body", "<!--", "-->",
                                 "<script", "</script", begin,    end,     "\r\n",   " ",    "x"};
    int pages = 0;
    const auto check = [&](const auto& self, const std::string& page, int left) -> void {
        for (const std::string& word : words) {
            if (left == 0)
                return;
            ++pages;
            try {
                CheckTakingOut(page + word);
                CheckSight(page + word);
            } catch (const std::logic_error& fault) {
                throw std::logic_error(page + word + "\n" + fault.what());
            }
            self(self, page + word, left - 1);
        }
    };
    check(check, "", tokens);
    return pages;
}

} // namespace orvane::testing
