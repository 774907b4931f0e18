#include "reedit/placing.h"

#include "insertion/page_script.h"
#include "reedit/taking_out.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::testing {
namespace {

FinishedPayload Made(EffectKind kind, TextView head, TextView body, TextView onLoad = {},
                     TextView onUnload = {})
{
    return Finish({.Kind = kind,
                   .HEADHTML = Text(head),
                   .BODYHTML = Text(body),
                   .OnLoadFunc = Text(onLoad),
                   .OnLoadArgs = onLoad.empty() ? u"" : u"('a')",
                   .OnUnloadFunc = Text(onUnload),
                   .OnUnloadArgs = onUnload.empty() ? u"" : u"(\"b\")"});
}

const FinishedPayload slideshow =
    Made(EffectKind::Slideshow, u"<SCRIPT>function go(n) {}</SCRIPT>\r\n", u"<P>1</P>\r\n", u"go");
const FinishedPayload ticker =
    Made(EffectKind::StatusBarTicker, u"<SCRIPT>function tick(n) {}</SCRIPT>\r\n", u"", u"tick",
         u"tick");
const FinishedPayload sound = Made(EffectKind::Sound, u"", u"<DIV>\u00E9</DIV>\r\n");

std::string Placed(const PlacedPage& placed)
{
    const auto* page = std::get_if<std::string>(&placed);
    return page ? *page : ToUtf8(Words(std::get<NoPlace>(placed)));
}

/// The page with the effect at the place of "@", which is taken out of it.
std::string PlacedAt(std::string page, const FinishedPayload& payload)
{
    const std::size_t at = page.find('@');
    page.erase(at, 1);
    return Placed(WithEffect(page, at, payload));
}

/// The code of a payload in HEAD or BODY with these line ends.
std::string Code(const Text& code, std::string_view lineEnd)
{
    return ReplaceAll(ToUtf8(code), "\r\n", lineEnd) + std::string(lineEnd);
}

TEST(PlacingTest, PutsEachPieceWhereItBelongsWithThePagesLineEnds)
{
    ExpectSameBytes(
        "<head>\n<title>x</title>\n" + Code(slideshow.Effect.HEADHTML, "\n") +
            "</head>\n<body onLoad=\"go('a')\" class=a>\n<p>y" +
            Code(slideshow.Effect.BODYHTML, "\n") + "</p>",
        PlacedAt("<head>\n<title>x</title>\n</head>\n<body class=a>\n<p>y@</p>", slideshow));
    ExpectSameBytes("<p>\xC3\xA9</p>" + Code(sound.Effect.BODYHTML, "\r\n"),
                    PlacedAt("<p>\xC3\xA9</p>@", sound));
    const std::string latin = ReplaceAll(Code(sound.Effect.BODYHTML, "\r"), "\xC3\xA9", "\xE9");
    ExpectSameBytes("<body>\r\xE9" + latin + "<p>", PlacedAt("<body>\r\xE9@<p>", sound));
}

TEST(PlacingTest, JoinsItsCallsWithWhatTheBodyTagDoesAlready)
{
    const std::pair<std::string, std::string> rows[] = {
        {"<body>", "<body onLoad=\"tick('a')\" onUnload=\"tick(&#34;b&#34;)\">"},
        {"<body onload='mine(1)' ONUNLOAD=bye()>",
         "<body onload='tick(&#39;a&#39;);mine(1)' ONUNLOAD=tick(&#34;b&#34;);bye()>"},
        {"<body onload=\"\" onunload>",
         "<body onUnload=\"tick(&#34;b&#34;)\" onload=\"tick('a');\" onunload>"},
    };
    for (const auto& [tag, expected] : rows) {
        const std::string placed = PlacedAt("<head></head>" + tag + "@</body>", ticker);
        EXPECT_EQ(placed.substr(std::min(placed.find("<body"), placed.size())),
                  expected + "</body>");
    }
}

TEST(PlacingTest, TellsWhyThereIsNoPlace)
{
    EXPECT_EQ(PlacedAt("<body><p @>", sound), ToUtf8(Words(NoPlace::InsideMarkup)));
    EXPECT_EQ(PlacedAt("<body><script>@</script>", sound), ToUtf8(Words(NoPlace::InsideMarkup)));
    EXPECT_EQ(PlacedAt("<body>" + Code(sound.Effect.BODYHTML, "\n").insert(90, "@"), sound),
              ToUtf8(Words(NoPlace::InsideEffect)));
    EXPECT_EQ(PlacedAt("<head>@</head>", sound), ToUtf8(Words(NoPlace::OutsideBody)));
    EXPECT_EQ(PlacedAt("<p>@", ticker), ToUtf8(Words(NoPlace::NoBodyTag)));
    EXPECT_EQ(PlacedAt(std::string("<\0p\0>\0@", 7), sound), ToUtf8(Words(NoPlace::TwoByteText)));
}

TEST(PlacingTest, KnowsTopAndEnd)
{
    const std::pair<std::string, std::string> rows[] = {
        {"<html><head></head><body>^x</body>y$</body></html>", "<body>x</body>"},
        {"<body>\r\n^\r\n$</body>", ""},
        {"<head></head>^<p>$</html>", ""},
        {"<html>^x$", ""},
        {"\xEF\xBB\xBF\n<!DOCTYPE html>^<p>$", ""},
        {"^$", ""},
    };
    for (auto [page, unused] : rows) {
        const std::size_t top = page.find('^'), end = page.find('$') - 1;
        page.erase(end + 1, 1).erase(top, 1);
        EXPECT_EQ(TopOf(page), top) << page;
        EXPECT_EQ(EndOf(page), end) << page;
    }
}

TEST(PlacingTest, ReplacesAnEffectExactlyWhereItStands)
{
    const std::string page = PlacedAt("<head></head><body onload=\"my()\">a@b</body>", slideshow);
    const FinishedPayload other =
        Made(EffectKind::Slideshow, u"<SCRIPT>function to() {}</SCRIPT>", u"<P>2</P>", u"", u"to");
    std::string expected =
        ReplaceAll(page, ToBytes(slideshow.Effect.HEADHTML), ToBytes(other.Effect.HEADHTML));
    expected =
        ReplaceAll(expected, ToBytes(slideshow.Effect.BODYHTML), ToBytes(other.Effect.BODYHTML));
    expected = ReplaceAll(expected, "<body onload=\"go('a');my()\"",
                          "<body onUnload=\"to(&#34;b&#34;)\" onload=\"my()\"");
    ExpectSameBytes(expected, Placed(WithReplaced(page, EffectsIn(page).at(0), other)));
    const auto inOwnLineEnds = [](const std::string& code) {
        return "\r" + ReplaceAll(code, "\r\n", "\n") + "\r\n";
    };
    const std::string mixed = inOwnLineEnds(page);
    ExpectSameBytes(inOwnLineEnds(expected),
                    Placed(WithReplaced(mixed, EffectsIn(mixed).at(0), other)));
    const std::string back = Placed(WithReplaced(expected, EffectsIn(expected).at(0), sound));
    EXPECT_EQ(back, "<head></head><body onload=\"my()\">a" +
                        ReplaceAll(ToUtf8(sound.Effect.BODYHTML), "\xC3\xA9", "\xE9") +
                        "\r\nb</body>");
}

/// Puts an effect in by one of two roads.
std::string Put(const std::string& page, const FinishedPayload& payload, bool inserts)
{
    if (!inserts)
        return Placed(WithEffect(page, std::min(page.find("<p>"), TopOf(page)), payload));
    const PageEdit edit = EditPageAndScript(page, payload, [] { return false; });
    return std::get<EditedPage>(edit).Bytes;
}

TEST(TakingOutTest, LeavesThePageAsItWasWhateverTheOrderAndTheRoad)
{
    const std::string pages[] = {
        "<html>\n<head>\n<title>x</title></head>\n<body>\n<p>y</p></body></html>\n",
        "<HEAD><TITLE>x</TITLE></HEAD><BODY onload='my()' onunload=bye()><p>y</BODY>",
        "<head></head><body class=a onload=\"\" >y</body>",
    };
    FinishedPayload payloads[] = {slideshow, ticker, sound};
    for (std::size_t way = 0; way < 3u * 16; ++way) {
        const std::string& page = pages[way / 16];
        std::vector<int> in = {0, 1, 2};
        do {
            std::string full = page;
            for (const int number : in) {
                payloads[number].WantsPageScript = (way & 8) != 0 && number != 2;
                full = Put(full, payloads[number], ((way >> number) & 1) != 0);
            }
            EXPECT_EQ(HasPageScript(full), (way & 8) != 0);
            std::vector<std::size_t> out = {0, 1, 2};
            do {
                std::string rest = full;
                std::vector<Text> names;
                for (const EffectInPage& effect : EffectsIn(full))
                    names.push_back(effect.Name);
                ASSERT_EQ(names.size(), 3u) << full;
                for (const std::size_t number : out)
                    for (const EffectInPage& effect : EffectsIn(std::string(rest)))
                        if (effect.Name == names[number]) {
                            rest = Without(rest, effect);
                            break;
                        }
                ExpectSameBytes(page, rest);
                ASSERT_FALSE(HasFailure()) << full;
            } while (std::next_permutation(out.begin(), out.end()));
        } while (std::next_permutation(in.begin(), in.end()));
    }
}

} // namespace
} // namespace orvane::testing
