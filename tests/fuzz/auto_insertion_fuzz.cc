#include "insertion/page_edit.h"
#include "tests/fuzz/fuzz_input.h"
#include "tests/fuzz/insertion_oracle.h"

namespace orvane::testing {

namespace {

using Place = InsertionWork::Place;
using Ending = ExpectedInsertion::Ending;

/// What is ASCII goes in as it is, whatever the page's encoding.
std::string NameFrom(std::string_view bytes)
{
    std::string name;
    for (const char byte : bytes.substr(0, 12))
        if (byte > ' ' && byte < 0x7F)
            name.push_back(byte);
    return name.empty() ? "go" : name;
}

/// Runs one insertion alone and compares it with what the oracle makes of the original bytes; gives
/// whether the author was asked.
bool CheckOne(const std::string& page, const InsertionWork& work, const FinishedPayload& payload)
{
    const ExpectedInsertion expected = ExpectInsertion(page, work);
    int asked = 0;
    const PageEdit edit = EditPage(page, payload, [&] {
        ++asked;
        return work.Yes;
    });
    Require(asked == (expected.Asked ? 1 : 0), "the author is asked when a copy is found");
    switch (expected.How) {
    case Ending::Written:
        Require(edit == PageEdit(EditedPage{Spliced(page, expected)}),
                "no byte outside of the cut changes");
        break;
    case Ending::Manual:
        Require(edit == PageEdit(ManualFallback()), "the work is left to the author");
        break;
    case Ending::Overflow:
        Require(edit == PageEdit(Fault::Overflow), "a position overflows");
        break;
    case Ending::InvalidCall:
        Require(edit == PageEdit(Fault::InvalidProcedureCall), "a length is negative");
        break;
    }
    return expected.Asked;
}

/// The page with the payload in it, one slot after the other; every question is answered so.
PageEdit InTurns(const std::string& page, const FinishedPayload& payload, bool yes)
{
    const auto turn = [&](auto... slots) {
        FinishedPayload part = payload;
        part.Effect = {};
        ((part.Effect.*slots = payload.Effect.*slots), ...);
        return part;
    };
    PageEdit edit = EditedPage{page};
    for (const FinishedPayload& part :
         {turn(&EffectPayload::HEADHTML), turn(&EffectPayload::BODYHTML),
          turn(&EffectPayload::OnLoadFunc, &EffectPayload::OnLoadArgs),
          turn(&EffectPayload::OnUnloadFunc, &EffectPayload::OnUnloadArgs)})
        if (const auto* edited = std::get_if<EditedPage>(&edit))
            edit = EditPage(std::string(edited->Bytes), part, [&] { return yes; });
    return edit;
}

/// The payload of one insertion, added to what the payload has.
void Add(EffectPayload& effect, const InsertionWork& work)
{
    if (work.Where == Place::Head)
        effect.HEADHTML = FromBytes(work.Code);
    else if (work.Where == Place::Body)
        effect.BODYHTML = FromBytes(work.Code);
    else if (work.Where == Place::OnLoad)
        effect.OnLoadFunc = FromBytes(work.Func);
    else
        effect.OnUnloadFunc = FromBytes(work.Func);
    effect.OnLoadArgs = effect.OnUnloadArgs = FromBytes(work.Args);
}

void Check(FuzzInput input)
{
    InsertionWork work{.Begin = "<!--B-->", .End = "<!--E-->"};
    work.Func = NameFrom(input.TakeText());
    work.Args = "(" + NameFrom(input.TakeText()) + ")";
    work.Code = work.Begin + work.Func + work.End;
    work.Yes = input.Choice(0);
    const bool searchesBody = input.Choice(1);
    std::string page(input.TakeRest());
    // A long page takes long; one in sixteen is enough.
    if (input.Choice(2) && input.Choice(3) && input.Choice(4) && input.Choice(5))
        page.insert(page.size() / 2, 32720, ' ');

    const FinishedPayload empty{.BeginMarker = FromBytes(work.Begin),
                                .EndMarker = FromBytes(work.End),
                                .ReplaceInBody = searchesBody};
    FinishedPayload whole = empty;
    bool isHeadAsked = false;
    for (const Place place : {Place::Head, Place::Body, Place::OnLoad, Place::OnUnload}) {
        work.Where = place;
        work.Searches = searchesBody || place == Place::Head;
        FinishedPayload payload = empty;
        Add(payload.Effect, work);
        Add(whole.Effect, work);
        const bool isAsked = CheckOne(page, work, payload);
        isHeadAsked = isHeadAsked || (place == Place::Head && isAsked);
    }
    int asked = 0;
    const PageEdit edit = EditPage(page, whole, [&] {
        ++asked;
        return work.Yes;
    });
    Require(!isHeadAsked || asked == 1, "the answer for the head stands for all");
    Require(edit == InTurns(page, whole, work.Yes), "all pieces go in as each alone does");
}

} // namespace

} // namespace orvane::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    orvane::testing::Check(orvane::testing::FuzzInput(bytes, size));
    return 0;
}
