#include "core/payload.h"
#include "core/template.h"
#include "effects/text/status_bar_ticker.h"

#include <benchmark/benchmark.h>

#include <vector>

// Filling a template beside appending the same pieces to a text of the right size.
namespace orvane {
namespace {

constexpr Template page(uR"page(
<SCRIPT LANGUAGE="JavaScript">
«CreditBanner»
<!--
function blink_banner(shown)
{
    document.getElementById("«Id»").style.visibility = shown ? "visible" : "hidden";
    document.getElementById("«Id»").style.color = "«Color»";
    window.setTimeout("blink_banner(" + !shown + ")",«PauseMs»);
}
//-->
</SCRIPT>
<SPAN ID="«Id»" STYLE="color:«Color»">«Message»</SPAN>
)page");

const Text color = u"#FF8000";
const Text pause = u"500";
const Text message = u"Welcome to my page, and thank you for coming!";

std::vector<TextView> Pieces()
{
    return {u"<SCRIPT LANGUAGE=\"JavaScript\">\r\n",
            CreditBanner,
            u"\r\n<!--\r\nfunction blink_banner(shown)\r\n{\r\n    document.getElementById(\"",
            u"banner",
            u"\").style.visibility = shown ? \"visible\" : \"hidden\";\r\n"
            u"    document.getElementById(\"",
            u"banner",
            u"\").style.color = \"",
            color,
            u"\";\r\n    window.setTimeout(\"blink_banner(\" + !shown + \")\",",
            pause,
            u");\r\n}\r\n//-->\r\n</SCRIPT>\r\n<SPAN ID=\"",
            u"banner",
            u"\" STYLE=\"color:",
            color,
            u"\">",
            message,
            u"</SPAN>\r\n"};
}

Text FillPage()
{
    return Fill(page, {{u"CreditBanner", CreditBanner},
                       {u"Id", u"banner"},
                       {u"Color", color},
                       {u"PauseMs", pause},
                       {u"Message", message}});
}

Text AppendPieces(const std::vector<TextView>& pieces)
{
    std::size_t size = 0;
    for (const TextView piece : pieces)
        size += piece.size();
    Text text;
    text.reserve(size);
    for (const TextView piece : pieces)
        text.append(piece);
    return text;
}

// A short text with many marks.
void FillShortPage(benchmark::State& state)
{
    if (FillPage() != AppendPieces(Pieces()))
        state.SkipWithError("the two ways give different texts");
    for (auto _ : state)
        benchmark::DoNotOptimize(FillPage());
}
BENCHMARK(FillShortPage);

void AppendShortPage(benchmark::State& state)
{
    const std::vector<TextView> pieces = Pieces();
    for (auto _ : state)
        benchmark::DoNotOptimize(AppendPieces(pieces));
}
BENCHMARK(AppendShortPage);

// A whole effect's script, as most generators write it.
void FillScript(benchmark::State& state)
{
    const StatusBarTicker ticker{message};
    for (auto _ : state)
        benchmark::DoNotOptimize(Generate(ticker));
}
BENCHMARK(FillScript);

void AppendScript(benchmark::State& state)
{
    const Text script = Generate({message}).HEADHTML;
    const std::size_t banner = Find(script, CreditBanner) - 1;
    const std::size_t words = Find(script, message) - 1;
    const TextView all = script;
    const std::size_t bannerEnd = banner + CreditBanner.size();
    const std::vector<TextView> pieces = {all.substr(0, banner), CreditBanner,
                                          all.substr(bannerEnd, words - bannerEnd), message,
                                          all.substr(words + message.size())};
    for (auto _ : state) {
        EffectPayload payload{.Kind = EffectKind::StatusBarTicker,
                              .HEADHTML = AppendPieces(pieces),
                              .OnLoadFunc = u"scrollit_r2l",
                              .OnLoadArgs = u"(99)"};
        benchmark::DoNotOptimize(payload);
    }
}
BENCHMARK(AppendScript);

} // namespace
} // namespace orvane
