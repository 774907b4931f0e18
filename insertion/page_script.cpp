#include "insertion/page_script.h"

#include "core/checksum.h"
#include "insertion/page_encoding.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr std::string_view fileBegin = "/*! Orvane page script ";
constexpr std::string_view fileBeginEnd = " */\n";

/// Takes the number at the front of a version, with the dot behind it; gives it without zeros in
/// front, so that of two numbers the one with more digits is the larger one.
std::string_view TakeNumber(std::string_view& version)
{
    std::string_view number = version.substr(0, version.find('.'));
    version.remove_prefix(std::min(number.size() + 1, version.size()));
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

/// Whether a call that stands in a BODY tag is one of these, each between two semicolons, or the
/// window of a popup effect.
bool IsOfEffects(std::string_view call, std::string_view known)
{
    return Find(known, Join({";", call, ";"})) != 0 || IsPopupWindow(call);
}

/// The calls of effects that the BODY tag holds under that name in vain, divided by semicolons:
/// browsers drop every attribute of a name but the first.
std::string DroppedCalls(std::string_view bodyTag, std::string_view event, std::string_view known)
{
    std::string dropped;
    bool isFirst = true;
    const std::string between = Join({";", known, ";"});
    bodyTag.remove_prefix(std::string_view("<body").size());
    while (const auto attribute = NextAttribute(bodyTag)) {
        if (!EqualIgnoringCase(attribute->Name, event) || std::exchange(isFirst, false))
            continue;
        if (IsOfEffects(attribute->Value, between) && !attribute->Value.empty())
            dropped.append(dropped.empty() ? "" : ";").append(attribute->Value);
    }
    return dropped;
}

/// The lines for a page whose effects have these calls.
std::string MakeLines(std::string_view code, const EventCalls& known)
{
    const auto body = BodyTag(code);
    const std::string_view tag = body ? CodeIn(code, *body) : std::string_view("<body>");
    return ToBytes(LinesOfPageScript({DroppedCalls(tag, "onload", known.OnLoad),
                                      DroppedCalls(tag, "onunload", known.OnUnload)}));
}

/// The calls of the payload, as the page's bytes will hold them, behind those that are known.
EventCalls AllCalls(const FinishedPayload& payload, PageEncoding encoding, const EventCalls& known)
{
    const EffectPayload& effect = payload.Effect;
    const auto bytes = [&](TextView Func, TextView Args) {
        return EncodeForAttribute(Join({Func, Args}), encoding);
    };
    return {known.OnLoad + ";" + bytes(effect.OnLoadFunc, effect.OnLoadArgs),
            known.OnUnload + ";" + bytes(effect.OnUnloadFunc, effect.OnUnloadArgs)};
}

} // namespace

bool IsPopupWindow(std::string_view call)
{
    return call.starts_with("window.open(") && Find(call, ",toolbar=") != 0;
}

bool HasPageScript(std::string_view page)
{
    return FindPageScriptLines(page).has_value();
}

std::string WithPageScript(std::string_view page)
{
    std::string code(page);
    const auto head = HeadTag(page);
    if (head && !HasPageScript(page))
        code.insert(head->End, ToBytes(LinesOfPageScript()));
    return code;
}

std::string WithoutPageScript(std::string_view page)
{
    std::string code(page);
    TakePageScriptLines(code);
    return code;
}

PageEdit EditPageAndScript(std::string_view page, const FinishedPayload& payload,
                           const ReplaceQuestion& askToReplace)
{
    // A page may be long: it is copied only where it has lines to take out.
    std::string rest(HasPageScript(page) ? page : std::string_view());
    const auto lines = TakePageScriptLines(rest);
    const std::string_view code = lines ? rest : page;
    if (!HeadTag(code) || (!lines && !payload.WantsPageScript))
        return EditPage(page, payload, askToReplace);
    PageEdit edit = EditPage(code, payload, askToReplace);
    auto* edited = std::get_if<EditedPage>(&edit);
    if (!edited)
        return edit;
    const EventCalls known =
        AllCalls(payload, EncodingOf(page), lines ? lines->Carried : EventCalls());
    std::string& bytes = edited->Bytes;
    constexpr std::size_t linesSize = 1024;
    bytes.reserve(bytes.size() + edited->Kept + linesSize);
    bytes.append(edited->RestOf(code));
    edited->Kept = 0;
    if (const auto head = HeadTag(bytes))
        bytes.insert(head->End, lines && lines->IsChanged ? lines->Code : MakeLines(bytes, known));
    return edit;
}

std::string WithPageScriptFor(std::string_view page, const FinishedPayload& payload)
{
    std::string code(page);
    const auto lines = TakePageScriptLines(code);
    const auto head = HeadTag(code);
    if (!head || (lines && lines->IsChanged))
        return std::string(page);
    const EventCalls known =
        AllCalls(payload, EncodingOf(page), lines ? lines->Carried : EventCalls());
    return code.insert(head->End, MakeLines(code, known));
}

void RenewPageScript(std::string& page, bool isWanted)
{
    auto lines = FindPageScriptLines(page);
    if (!lines)
        return;
    if (!isWanted)
        TakePageScriptLines(page);
    else if (!lines->IsChanged)
        page.replace(lines->Whole.Begin, lines->Code.size(), MakeLines(page, lines->Carried));
}

std::string PageScriptFile(std::string_view version, std::string_view script)
{
    return Join({fileBegin, version, " ", ChecksumOf(script), fileBeginEnd, script});
}

std::string_view PageScriptVersion(std::string_view file)
{
    if (!file.starts_with(fileBegin))
        return {};
    file.remove_prefix(fileBegin.size());
    const std::size_t end = file.find_first_not_of("0123456789.");
    return end != std::string_view::npos && file[end] == ' ' ? file.substr(0, end)
                                                             : std::string_view();
}

bool IsPageScriptUnchanged(std::string_view file)
{
    const std::size_t end = file.find(fileBeginEnd);
    return end != std::string_view::npos &&
           file == PageScriptFile(PageScriptVersion(file), file.substr(end + fileBeginEnd.size()));
}

bool IsLaterVersion(std::string_view version, std::string_view other)
{
    while (!version.empty() || !other.empty()) {
        const std::string_view left = TakeNumber(version), right = TakeNumber(other);
        if (left != right)
            return std::pair(left.size(), left) > std::pair(right.size(), right);
    }
    return false;
}

} // namespace orvane
