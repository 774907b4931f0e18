#include "effects/fields_in_page.h"

#include "effects/effects.h"
#include "insertion/page_encoding.h"
#include "reedit/applet_tag.h"
#include "reedit/applet_values.h"
#include "reedit/remembered_fields.h"

#include <algorithm>

namespace orvane {

namespace {

/// The effect's code in the page, as text.
Text CodeOf(std::string_view page, const EffectInPage& effect)
{
    std::string code;
    for (const EffectPart& part : effect.Parts)
        if (part.Place == PartPlace::Head || part.Place == PartPlace::Body)
            code += CodeIn(page, part.Span);
    return EncodingOf(page) == PageEncoding::Utf8 ? FromUtf8(code) : FromWindows1252(code);
}

/// What the applet's tag in the code fills; nothing where no wizard of these kinds reads it.
std::optional<FieldsInPage> FromTag(TextView code, const std::vector<EffectKind>& kinds)
{
    const std::size_t at = FindIgnoringCase(code, u"<applet");
    if (at == 0)
        return std::nullopt;
    const PastedTag tag = WithoutQuotes(TagOf(code.substr(at - 1)));
    const AppletDispatch dispatch = RecognizeApplet(tag.AppletTextAfterCODE);
    const bool isChoice = dispatch.Next == AppletDispatch::Way::Choice;
    const EffectKind kind = isChoice ? kinds.front() : dispatch.Kind;
    if (std::ranges::find(kinds, kind) == kinds.end())
        return std::nullopt;
    return FieldsInPage{kind, tag};
}

} // namespace

FieldsInPage ReadFields(const FileStore& files, TextView stateFolder, std::string_view page,
                        const EffectInPage& effect)
{
    if (auto fields = FieldsOf(files, stateFolder, page, effect))
        return {fields->Kind, Recipe{std::move(fields->Draft)}, true};
    const Text code = CodeOf(page, effect);
    for (const EffectKind kind : effect.Kinds)
        if (auto fresh = AnyEffect::Fresh(kind); fresh && fresh->ReadBlock(code))
            return {kind, Recipe{fresh->Draft()}};
    return FromTag(code, effect.Kinds).value_or(FieldsInPage{effect.Kinds.front()});
}

} // namespace orvane
