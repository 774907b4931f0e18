#include "insertion/page_edit.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <ostream>

namespace orvane {
namespace {

/// "Y" and "N" are the author's answers in order; every one must be asked for.
struct EditCase
{
    const char* Name;
    std::string Page;
    FinishedPayload Payload;
    std::string Answers;
    PageEdit Expected;
};

std::ostream& operator<<(std::ostream& out, const EditCase& one)
{
    return out << one.Name;
}

std::string Shown(const PageEdit& edit)
{
    if (const auto* page = std::get_if<EditedPage>(&edit))
        return "page " + page->Bytes;
    if (const auto* fault = std::get_if<Fault>(&edit))
        return "fault " + ToUtf8(Words(*fault));
    return "manual";
}

const FinishedPayload base{.BeginMarker = u"<!--B-->", .EndMarker = u"<!--E-->"};

FinishedPayload Head(TextView code = u"<!--B-->h<!--E-->")
{
    FinishedPayload payload = base;
    payload.Effect.HEADHTML = code;
    return payload;
}

FinishedPayload Body(bool replaces)
{
    FinishedPayload payload = base;
    payload.Effect.BODYHTML = u"<!--B-->b<!--E-->";
    payload.ReplaceInBody = replaces;
    return payload;
}

FinishedPayload OnLoad(TextView function = u"go", TextView arguments = u"(2)")
{
    FinishedPayload payload = base;
    payload.Effect.OnLoadFunc = function;
    payload.Effect.OnLoadArgs = arguments;
    return payload;
}

FinishedPayload All()
{
    FinishedPayload payload = Body(true);
    payload.Effect.HEADHTML = u"<!--B-->h<!--E-->";
    payload.Effect.OnLoadFunc = u"go";
    payload.Effect.OnLoadArgs = u"(2)";
    payload.Effect.OnUnloadFunc = u"stop";
    payload.Effect.OnUnloadArgs = u"()";
    return payload;
}

PageEdit Edit(std::string_view page, const FinishedPayload& payload, std::string answers = {})
{
    const PageEdit edit = EditPage(page, payload, [&] {
        if (answers.empty()) {
            ADD_FAILURE() << "a question nobody expected";
            return false;
        }
        const bool isYes = answers.front() == 'Y';
        answers.erase(0, 1);
        return isYes;
    });
    EXPECT_EQ(answers, "") << "answers that nobody asked for";
    return edit;
}

std::string NameOf(const ::testing::TestParamInfo<EditCase>& one)
{
    return one.param.Name;
}

class PageEditTest : public ::testing::TestWithParam<EditCase>
{
};

TEST_P(PageEditTest, GivesThePageOrSaysWhyNot)
{
    const auto& [name, page, payload, answers, expected] = GetParam();
    EXPECT_EQ(Shown(Edit(page, payload, answers)), Shown(expected));
}

PageEdit Page(std::string bytes)
{
    return EditedPage{std::move(bytes)};
}

constexpr auto invalid = Fault::InvalidProcedureCall;

INSTANTIATE_TEST_SUITE_P(
    Head, PageEditTest,
    ::testing::Values(
        EditCase{"WritesTheCharacterBehindTheTagTwice", "<head>x</head>", Head(), "",
                 Page("<head>x\r\n<!--B-->h<!--E-->\r\nx</head>")},
        EditCase{"LeavesALoneCrBehindATagWithCrLf", "<HTML><HEAD>\r\n<TITLE>t</TITLE></HEAD>",
                 Head(), "",
                 Page("<HTML><HEAD>\r\r\n<!--B-->h<!--E-->\r\n\r\n<TITLE>t</TITLE></HEAD>")},
        EditCase{"SplitsTheCloseTagOfAnEmptyHead", "<head></head>", Head(), "",
                 Page("<head><\r\n<!--B-->h<!--E-->\r\n</head>")},
        EditCase{"TakesATagNamedHeader", "<header>y</header><head>x</head>", Head(), "",
                 Page("<header>y\r\n<!--B-->h<!--E-->\r\ny</header><head>x</head>")},
        EditCase{"TakesTheFirstGreaterThanEvenInQuotes", "<head profile=\"a>b\">x</head>", Head(),
                 "", Page("<head profile=\"a>b\r\n<!--B-->h<!--E-->\r\nb\">x</head>")},
        EditCase{"GoesOnFromTheStartWithoutAnyGreaterThan", "<head </head", Head(), "",
                 Page("<\r\n<!--B-->h<!--E-->\r\n<head </head")},
        EditCase{"IsManualWithoutAHeadTag", "<html><body>x</body></html>", Head(), "",
                 ManualFallback()},
        EditCase{"FailsWithoutACloseTag", "<head>x<body>", Head(), "", invalid},
        EditCase{"FailsWhenTheCloseTagComesBeforeTheGreaterThan", "<head </head>x", Head(), "",
                 invalid},
        EditCase{"ReplacesAnEarlierCopyOnYes", "<head>x<!--B-->old<!--E-->y</head>z", Head(), "Y",
                 Page("<head>x\r\nx<!--B-->h<!--E-->y\r\n</head>z")},
        EditCase{"IsManualOnNo", "<head>x<!--B-->old<!--E-->y</head>z", Head(), "N",
                 ManualFallback()},
        EditCase{"ReplacesEveryExactCopyAndNoOther",
                 "<head>x<!--b-->o<!--E--><!--b-->o<!--E--><!--B-->o<!--E--></head>", Head(), "Y",
                 Page("<head>x\r\nx<!--B-->h<!--E--><!--B-->h<!--E--><!--B-->o<!--E-->\r\n"
                      "</head>")},
        EditCase{"InsertsWithoutAQuestionWhenTheEndIsMissing", "<head>x<!--B-->old</head>", Head(),
                 "", Page("<head>x\r\n<!--B-->h<!--E-->\r\nx<!--B-->old</head>")},
        EditCase{"AsksThenFailsWhenTheEndComesFirst", "<head>x<!--E-->old<!--B--></head>", Head(),
                 "Y", invalid},
        EditCase{"IsManualOnNoWhenTheEndComesFirst", "<head>x<!--E-->old<!--B--></head>", Head(),
                 "N", ManualFallback()},
        EditCase{"DoesNotLookBehindTheCloseTag", "<head>x</head><!--B-->old<!--E-->", Head(), "",
                 Page("<head>x\r\n<!--B-->h<!--E-->\r\nx</head><!--B-->old<!--E-->")}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Body, PageEditTest,
    ::testing::Values(EditCase{"NeedsNoHead", "<BODY class=a>x</BODY>", Body(false), "",
                               Page("<BODY class=a>x\r\n<!--B-->b<!--E-->\r\nx</BODY>")},
                      EditCase{"IsManualWithoutABodyTag", "<head>x</head>", Body(false), "",
                               ManualFallback()},
                      EditCase{"FailsWithoutACloseTag", "<body>x", Body(false), "", invalid},
                      EditCase{"IsInsertedAgainWhereNoSearchIsMade",
                               "<body>x<!--B-->old<!--E--></body>", Body(false), "",
                               Page("<body>x\r\n<!--B-->b<!--E-->\r\nx<!--B-->old<!--E--></body>")},
                      EditCase{"ReplacesAnEarlierCopyOnYes", "<body>x<!--B-->old<!--E--></body>z",
                               Body(true), "Y", Page("<body>x\r\nx<!--B-->b<!--E-->\r\n</body>z")},
                      EditCase{"IsManualOnNo", "<body>x<!--B-->old<!--E--></body>z", Body(true),
                               "N", ManualFallback()}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Attribute, PageEditTest,
    ::testing::Values(EditCase{"GoesBeforeTheGreaterThan", "<body>x", OnLoad(), "",
                               Page("<body onload=\"go(2)\" >x")},
                      EditCase{"IsSkippedWithoutABodyTag", "<html>", OnLoad(), "", Page("<html>")},
                      EditCase{"FailsWithoutAGreaterThan", "<body ", OnLoad(), "", invalid},
                      EditCase{"LeavesAnotherFunctionInPlace", "<body onload=\"a()\">", OnLoad(),
                               "", Page("<body onload=\"a()\" onload=\"go(2)\" >")},
                      EditCase{"ReplacesTheArgumentsOnYes", "<body onLoad=\"GO(1)\">", OnLoad(),
                               "Y", Page("<body onLoad=\"go(2)\">")},
                      EditCase{"StaysOnNo", "<body onload=\"go(1)\">", OnLoad(), "N",
                               Page("<body onload=\"go(1)\">")},
                      EditCase{"LeavesATailOfArgumentsThatHoldAParenthesis",
                               "<body onload=\"go(f(1),3)\">", OnLoad(), "Y",
                               Page("<body onload=\"go(2),3)\">")},
                      EditCase{"FailsWithoutAParenthesisBehindTheName", "<body class=go>()",
                               OnLoad(), "Y", invalid},
                      EditCase{"FindsTheNameAnywhereInTheTag", "<body onload=\"b(1)\">",
                               OnLoad(u"b"), "Y", Page("<b(2)\">")},
                      EditCase{"ReplacesEveryExactCopyInTheTag",
                               "<body onload=\"go(1);go(1);go(3)\">", OnLoad(), "Y",
                               Page("<body onload=\"go(2);go(2);go(3)\">")},
                      EditCase{"IsEncodedAsAnAttributeEvenWithAScriptInIt", "<body>",
                               OnLoad(u"go", u"('<script>\u0142')"), "",
                               Page("<body onload=\"go('<script>&#322;')\" >")}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Whole, PageEditTest,
    ::testing::Values(
        EditCase{"PutsInAllFourPieces", "<head>x</head><body>y</body>", All(), "",
                 Page("<head>x\r\n<!--B-->h<!--E-->\r\nx</head>"
                      "<body onload=\"go(2)\"  onunload=\"stop()\" >"
                      "y\r\n<!--B-->b<!--E-->\r\ny</body>")},
        EditCase{"AsksOnceWhenTheHeadIsAnsweredYes",
                 "<head>x<!--B--><!--E--></head>"
                 "<body onload=\"go(1)\"  onunload=\"stop(9)\" >y<!--B--><!--E--></body>",
                 All(), "Y",
                 Page("<head>x\r\nx<!--B-->h<!--E-->\r\n</head>"
                      "<body onload=\"go(2)\"  onunload=\"stop()\" >"
                      "y\r\ny<!--B-->b<!--E-->\r\n</body>")},
        EditCase{"AsksForBodyAndEachAttributeWhenTheHeadHasNoCopy",
                 "<head>x</head>"
                 "<body onload=\"go(1)\" onunload=\"stop(9)\">y<!--B--><!--E--></body>",
                 All(), "YNY",
                 Page("<head>x\r\n<!--B-->h<!--E-->\r\nx</head>"
                      "<body onload=\"go(1)\" onunload=\"stop()\">"
                      "y\r\ny<!--B-->b<!--E-->\r\n</body>")},
        EditCase{"DropsTheHeadWhenTheBodyIsAnsweredNo",
                 "<head>x</head><body>y<!--B--><!--E--></body>", All(), "N", ManualFallback()},
        EditCase{"DropsTheHeadWhenTheBodyFails", "<head>x</head><body>y", All(), "", invalid},
        EditCase{"LooksForTheBodyInWhatTheHeadPutIn", "<head>x</head><body>y</body>",
                 [] {
                     FinishedPayload payload = Head(u"<body>");
                     payload.Effect.OnLoadFunc = u"go";
                     return payload;
                 }(),
                 "", Page("<head>x\r\n<body onload=\"go\" >\r\nx</head><body>y</body>")}),
    NameOf);

std::string Fill(std::size_t count)
{
    return std::string(count, '.');
}

// Position 32767 is the last one; "<head>" ends six characters behind what fills the page.
INSTANTIATE_TEST_SUITE_P(
    Positions, PageEditTest,
    ::testing::Values(
        EditCase{"TheCloseTagMayStandAtTheLast", Fill(32760) + "<head></head>", Head(), "",
                 Page(Fill(32760) + "<head><\r\n<!--B-->h<!--E-->\r\n</head>")},
        EditCase{"TheCharacterBehindTheTagMustHaveOne", Fill(32761) + "<head></head>", Head(), "",
                 Fault::Overflow},
        EditCase{"TheCloseTagMustHaveOne", "<head>" + Fill(32761) + "</head>", Head(), "",
                 Fault::Overflow},
        EditCase{"OverflowComesBeforeANegativeLength", Fill(32761) + "<head>", Head(), "",
                 Fault::Overflow},
        EditCase{"TheGreaterThanMustHaveOne", "<head" + Fill(32763) + "></head>", Head(), "",
                 Fault::Overflow},
        EditCase{"TheHeadTagMustHaveOne", Fill(32767) + "<head", Head(), "", Fault::Overflow},
        EditCase{"TheHeadTagAtTheLastGoesOn", Fill(32766) + "<head", Head(), "", invalid},
        EditCase{"ASearchThatFindsNothingHasNone", Fill(40000), Head(), "", ManualFallback()},
        EditCase{"AnAttributeMayEndAtTheLast", Fill(32761) + "<body>", OnLoad(), "",
                 Page(Fill(32761) + "<body onload=\"go(2)\" >")},
        EditCase{"AnAttributeMayNotEndBehindIt", Fill(32762) + "<body>", OnLoad(), "",
                 Fault::Overflow},
        EditCase{"TheBodyTagOfAnAttributeMustHaveOne", Fill(32767) + "<body", OnLoad(), "",
                 Fault::Overflow},
        EditCase{"TheHeadMayPushTheBodyTooFar", "<head>x</head>" + Fill(32724) + "<body>y</body>",
                 All(), "", Fault::Overflow}),
    NameOf);

TEST(ReplaceEffectInExistingCodeTest, GivesTheFaultsOfItsPositions)
{
    const auto replaced = [](TextView code) {
        return ReplaceEffectInExistingCode(code, u"new", u"<b>", u"</b>");
    };
    const Text fill(32756, u'.');
    EXPECT_EQ(replaced(Join({u"<b>....", fill, u"</b>?"})), Outcome<Text>(Fault::Overflow));
    EXPECT_EQ(replaced(Join({u"<b>...", fill, u"</b>?"})), Outcome<Text>(u"new?"));
    EXPECT_EQ(replaced(Join({fill, u"...........<b></b>"})), Outcome<Text>(Fault::Overflow));
    EXPECT_EQ(replaced(u"</b><b>"), Outcome<Text>(Fault::InvalidProcedureCall));
    EXPECT_EQ(replaced(u"<b>"), Outcome<Text>(Fault::InvalidProcedureCall));
    EXPECT_EQ(replaced(u"</b>"), Outcome<Text>(Fault::InvalidProcedureCall));
}

TEST(FindEffectInExistingCodeTest, WantsBothMarkersInAnyOrderAndCase)
{
    EXPECT_TRUE(FindEffectInExistingCode(u"..END..begin", u"Begin", u"end"));
    EXPECT_TRUE(FindEffectInExistingCode(u"begin", u"Begin", u""));
    EXPECT_FALSE(FindEffectInExistingCode(u"begin", u"Begin", u"end"));
    EXPECT_FALSE(FindEffectInExistingCode(u"end", u"Begin", u"end"));
}

TEST(PageEditEncodingTest, WritesEachPieceInThePagesEncoding)
{
    FinishedPayload payload = Head(u"<script>'\u00E9\u0142'</script>\u00E9\u0142");
    payload.Effect.OnLoadFunc = u"go";
    payload.Effect.OnLoadArgs = u"('\u00E9\u0142')";
    const std::string start = "<head>\n<meta charset=";
    const std::string end = "></head><body>";
    const auto expect = [&](const std::string& charset, const std::string& script,
                            const std::string& markup, const std::string& value) {
        const std::string page = start + charset + end;
        EXPECT_EQ(Shown(Edit(page, payload)), "page <head>\n\r\n<script>'" + script + "'</script>" +
                                                  markup + "\r\n\n<meta charset=" + charset +
                                                  "></head><body onload=\"go('" + value + "')\" >");
    };
    expect("utf-8", "\xC3\xA9\xC5\x82", "\xC3\xA9\xC5\x82", "\xC3\xA9\xC5\x82");
    expect("iso-8859-1", "\xE9\\u0142", "\xE9&#322;", "\xE9&#322;");
    expect("shift_jis", "\\u00E9\\u0142", "&#233;&#322;", "&#233;&#322;");
}

TEST(PageEditEncodingTest, KeepsToUtf8AfterItDoubledHalfACharacter)
{
    FinishedPayload payload = Head(u"<!--B-->\u00E4<!--E-->");
    const std::string first = "<head>\xC3\r\n<!--B-->\xC3\xA4<!--E-->\r\n\xC3\xA9</head>";
    EXPECT_EQ(Shown(Edit("<head>\xC3\xA9</head>", payload)), "page " + first);
    const std::string second = "<head>\xC3\r\n\xC3\r\n<!--B-->\xC3\xA4<!--E-->\r\n\xC3\xA9\r\n"
                               "</head>";
    EXPECT_EQ(Shown(Edit(first, payload, "Y")), "page " + second);
    const std::string third = "<head>\xC3\r\n\xC3\r\n\xC3\r\n<!--B-->\xC3\xA4<!--E-->\r\n"
                              "\xC3\xA9\r\n\r\n</head>";
    EXPECT_EQ(Shown(Edit(second, payload, "Y")), "page " + third);
}

} // namespace
} // namespace orvane
