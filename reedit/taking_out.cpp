#include "reedit/taking_out.h"

#include "insertion/page_encoding.h"
#include "insertion/page_script.h"
#include "reedit/body_calls.h"
#include "reedit/effect_cuts.h"
#include "reedit/inserted_blocks.h"

#include <algorithm>

namespace orvane {

namespace {

/// Takes out the code that an insertion put behind a tag; false when it does not stand there.
bool TakeCode(std::string& page, PartPlace place, const std::string& code)
{
    if (code.empty())
        return true;
    const std::size_t at = page.find(code);
    if (at == std::string::npos)
        return false;
    const std::vector<EffectPart> block = {{place, {at, at + code.size()}}};
    const InsertedBlocks inserted(page, block);
    if (!inserted.IsInserted(block.front()))
        return false;
    page = Spliced(page, inserted.CutsOf(block));
    return true;
}

/// Takes out an attribute that an insertion put into the BODY tag, if there is such a tag; false
/// when it does not stand there.
bool TakeAttribute(std::string& page, std::string_view name, const std::string& call)
{
    const std::size_t tag = FindIgnoringCase(page, "<body");
    if (call.empty() || tag == 0)
        return true;
    const std::string attribute = Join({" ", name, "=\"", call, "\" "});
    const std::size_t at = page.find(attribute, tag);
    if (at != std::string::npos)
        page.erase(at, attribute.size());
    return at != std::string::npos;
}

bool AnyNeedsPageScript(std::string_view page)
{
    return std::ranges::any_of(EffectsIn(page), &EffectInPage::NeedsPageScript);
}

/// The lines stay where the effect did not need them: somebody else put them there.
void RenewLines(std::string& page, bool didNeedThem)
{
    if (HasPageScript(page))
        RenewPageScript(page, !didNeedThem || AnyNeedsPageScript(page));
}

} // namespace

std::string Without(std::string_view page, const EffectInPage& effect)
{
    if (!CanBeTouched(effect))
        return std::string(page);
    std::string rest = Spliced(page, CutsOf(page, effect));
    RenewLines(rest, effect.NeedsPageScript);
    return rest;
}

std::optional<std::string> WithoutInsertion(std::string_view page, const FinishedPayload& payload)
{
    const EffectPayload& effect = payload.Effect;
    const PageEncoding encoding = EncodingOf(page);
    const auto call = [&](const Text& function, const Text& arguments) {
        return function.empty() ? std::string()
                                : EncodeForAttribute(function, encoding) +
                                      EncodeForAttribute(arguments, encoding);
    };
    // The last piece that went in goes first.
    std::string rest(page);
    if (!TakeAttribute(rest, "onunload", call(effect.OnUnloadFunc, effect.OnUnloadArgs)) ||
        !TakeAttribute(rest, "onload", call(effect.OnLoadFunc, effect.OnLoadArgs)) ||
        !TakeCode(rest, PartPlace::Body, EncodeForPage(effect.BODYHTML, encoding)) ||
        !TakeCode(rest, PartPlace::Head, EncodeForPage(effect.HEADHTML, encoding)))
        return std::nullopt;
    RenewLines(rest, !RunsByItself(effect));
    return rest;
}

} // namespace orvane
