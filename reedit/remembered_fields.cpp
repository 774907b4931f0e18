#include "reedit/remembered_fields.h"

#include "core/checksum.h"
#include "core/draft.h"
#include "core/file_names.h"
#include "core/numbers.h"
#include "insertion/page_decoding.h"
#include "insertion/page_encoding.h"
#include "services/drafts.h"

#include <algorithm>
#include <set>

namespace orvane {

namespace {

constexpr std::string_view kindName = "EffectKind";

/// An effect's text as the bytes of a page.
struct DeliveredText
{
    std::string_view HEAD;
    std::string_view BODY;
    std::string_view OnLoad;
    std::string_view OnUnload;
};

/// The digest of the text, which is the same with other line ends, and however the quotes around a
/// call are written.
std::string DigestOf(const DeliveredText& text)
{
    const auto code = [](std::string_view bytes) {
        return ReplaceAll(ReplaceAll(bytes, "\r\n", "\n"), "\r", "\n");
    };
    const auto call = [](std::string_view bytes) {
        return ToUtf8(WithoutReferences(FromBytes(bytes)));
    };
    const std::string_view between("\0", 1);
    return ChecksumOf(Join({code(text.HEAD), between, code(text.BODY), between, call(text.OnLoad),
                            between, call(text.OnUnload)}));
}

Text PathOf(TextView stateFolder, std::string_view digest)
{
    return PathIn(PathIn(stateFolder, u"delivered-fields"), FromUtf8(digest) + u".txt");
}

std::optional<RememberedFields> ReadFields(const FileStore& files, TextView path)
{
    auto draft = ReadDraftFile(files, path);
    if (!draft)
        return std::nullopt;
    const DraftFields fields = ReadDraftFields(*draft);
    const auto kind = fields.find(kindName);
    if (kind == fields.end() || kind->second.empty())
        return std::nullopt;
    const auto number = ToInteger16(kind->second.front());
    if (FaultIn(number))
        return std::nullopt;
    return RememberedFields{static_cast<EffectKind>(ValueIn(number)), std::move(*draft)};
}

} // namespace

void RememberFields(FileStore& files, TextView stateFolder, const FinishedPayload& payload,
                    TextView draft)
{
    const EffectPayload& effect = payload.Effect;
    const Text kind = NumberToText(static_cast<int>(effect.Kind));
    std::set<std::string> digests;
    for (const PageEncoding encoding :
         {PageEncoding::Windows1252, PageEncoding::Utf8, PageEncoding::AsciiOnly}) {
        const auto call = [=](TextView function, TextView arguments) {
            return EncodeForAttribute(Join({function, arguments}), encoding);
        };
        digests.insert(DigestOf({EncodeForPage(effect.HEADHTML, encoding),
                                 EncodeForPage(effect.BODYHTML, encoding),
                                 call(effect.OnLoadFunc, effect.OnLoadArgs),
                                 call(effect.OnUnloadFunc, effect.OnUnloadArgs)}));
    }
    for (const std::string& digest : digests)
        WriteDraftFile(files, PathOf(stateFolder, digest), DraftLine(kindName, kind) + Text(draft));
}

std::optional<RememberedFields> FieldsOf(const FileStore& files, TextView stateFolder,
                                         std::string_view page, const EffectInPage& effect)
{
    DeliveredText text;
    std::vector<std::string_view> bodies;
    for (const EffectPart& part : effect.Parts) {
        const std::string_view code = CodeIn(page, part.Span);
        if (part.Place == PartPlace::Body)
            bodies.push_back(code);
        else if (part.Place == PartPlace::Head)
            text.HEAD = code;
        else if (part.Place == PartPlace::OnLoad)
            text.OnLoad = code;
        else if (part.Place == PartPlace::OnUnload)
            text.OnUnload = code;
    }
    if (bodies.empty())
        bodies.emplace_back();
    for (const std::string_view body : bodies) {
        text.BODY = body;
        if (auto fields = ReadFields(files, PathOf(stateFolder, DigestOf(text))))
            return fields;
    }
    return std::nullopt;
}

} // namespace orvane
