#include "insertion/page_edit.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane::testing {
namespace {

/// A page, what becomes of it, and the author's answers in order, of which every one must be asked
/// for. «h» and «b» stand for the code put into head and body, on lines of its own.
struct EditRow
{
    std::string Page;
    std::string Expected;
    std::string Answers = {};
};

std::string Shown(const PageEdit& edit, std::string_view page = {})
{
    if (const auto* edited = std::get_if<EditedPage>(&edit))
        return Join({edited->Bytes, edited->RestOf(page)});
    if (const auto* fault = std::get_if<Fault>(&edit))
        return *fault == Fault::Overflow ? "overflow" : ToUtf8(Words(*fault));
    return "manual";
}

const std::string invalid = "Invalid procedure call or argument";

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

void ExpectEdits(const FinishedPayload& payload, const std::vector<EditRow>& rows)
{
    for (auto [page, expected, answers] : rows) {
        SCOPED_TRACE(page.size() < 200 ? page : "a page of " + std::to_string(page.size()));
        for (const std::string code : {"h", "b"})
            for (std::size_t at; (at = expected.find("«" + code + "»")) != std::string::npos;)
                expected.replace(at, 5, "\r\n<!--B-->" + code + "<!--E-->\r\n");
        ExpectSameBytes(expected, Shown(Edit(page, payload, answers), page));
    }
}

std::string Fill(std::size_t count)
{
    return std::string(count, '.');
}

TEST(HeadEditTest, WritesTheCharacterBehindTheTagTwiceWhateverItIs)
{
    ExpectEdits(Head(), {{"<head>x</head>", "<head>x«h»x</head>"},
                         {"<HTML><HEAD>\r\n<P></HEAD>", "<HTML><HEAD>\r«h»\r\n<P></HEAD>"},
                         {"<head></head>", "<head><«h»</head>"},
                         {"<header>y</header><head></head>", "<header>y«h»y</header><head></head>"},
                         {"<head a=\"a>b\">x</head>", "<head a=\"a>b«h»b\">x</head>"},
                         {"<head </head", "<«h»<head </head"},
                         {"<head>x<!--B--></head>", "<head>x«h»x<!--B--></head>"},
                         {"<head>x</head><!--B--><!--E-->", "<head>x«h»x</head><!--B--><!--E-->"}});
}

TEST(HeadEditTest, IsManualWithoutATagAndFailsWithoutAnEndBehindIt)
{
    ExpectEdits(Head(), {{"<html><body>x</body></html>", "manual"},
                         {"<head>x<body>", invalid},
                         {"<head </head>x", invalid}});
}

TEST(HeadEditTest, ReplacesEveryExactCopyAndNoOtherOnYesAndIsManualOnNo)
{
    ExpectEdits(
        Head(),
        {{"<head>x<!--B--><!--E-->y</head>z", "<head>x\r\nx<!--B-->h<!--E-->y\r\n</head>z", "Y"},
         {"<head>x<!--b-->o<!--E--><!--b-->o<!--E--><!--B-->o<!--E--></head>",
          "<head>x\r\nx<!--B-->h<!--E--><!--B-->h<!--E--><!--B-->o<!--E-->\r\n</head>", "Y"},
         {"<head>x<!--B-->old<!--E-->y</head>z", "manual", "N"},
         {"<head>x<!--E--><!--B--></head>", invalid, "Y"},
         {"<head>x<!--E--><!--B--></head>", "manual", "N"}});
}

// The head tag ends six characters behind what fills the page.
TEST(HeadEditTest, HasNoPositionBehind32767)
{
    ExpectEdits(Head(), {{Fill(32760) + "<head></head>", Fill(32760) + "<head><«h»</head>"},
                         {Fill(32761) + "<head></head>", "overflow"},
                         {"<head>" + Fill(32761) + "</head>", "overflow"},
                         {Fill(32761) + "<head>", "overflow"},
                         {"<head" + Fill(32763) + "></head>", "overflow"},
                         {Fill(32767) + "<head", "overflow"},
                         {Fill(32766) + "<head", invalid},
                         {Fill(40000), "manual"}});
}

TEST(PageEditTest, LeavesTheRestOfALongPageWhereItIsButSearchesIt)
{
    const std::string start = "<head>x</head><body>y";
    const std::string rest = Fill(163840 - 6 - start.size()) + "</BO" + Fill(40000);
    const PageEdit edit = Edit(start + rest, Head());
    EXPECT_GT(std::get<EditedPage>(edit).Kept, 39000u);
    ExpectEdits(Head(), {{start + rest, "<head>x«h»x</head><body>y" + rest},
                         {"<head>x<!--B-->" + Fill(32700) + "<!--E--></head>" + rest,
                          "<head>x\r\nx<!--B-->h<!--E-->\r\n</head>" + rest, "Y"}});
    const std::string cut = Fill(163840 - 4 - start.size()); // in the middle of the close tag
    ExpectEdits(Body(true), {{start + cut + "</body>" + rest, "overflow"},
                             {start + rest + "</body>", "overflow"},
                             {start + rest, invalid},
                             {rest + "<body>", "overflow"},
                             {rest, "manual"}});
    // Positions count in the page as the edits before left it.
    FinishedPayload both = Head();
    both.Effect.BODYHTML = u"<!--B-->b<!--E-->";
    ExpectEdits(
        both,
        {{"<head>x<!--B-->" + Fill(32700) + "<!--E--></head>" + Fill(900) + "<body>y</body>" + rest,
          "<head>x\r\nx<!--B-->h<!--E-->\r\n</head>" + Fill(900) + "<body>y«b»y</body>" + rest,
          "Y"}});
}

TEST(BodyEditTest, NeedsNoHeadAndAsksWhereASearchIsMade)
{
    ExpectEdits(Body(true), {{"<BODY class=a>x</BODY>", "<BODY class=a>x«b»x</BODY>"},
                             {"<head>x</head>", "manual"},
                             {"<body>x", invalid},
                             {"<body>x<!--B-->o<!--E--></body>z",
                              "<body>x\r\nx<!--B-->b<!--E-->\r\n</body>z", "Y"},
                             {"<body>x<!--B-->old<!--E--></body>z", "manual", "N"}});
    ExpectEdits(Body(false),
                {{"<body>x<!--B-->o<!--E--></body>", "<body>x«b»x<!--B-->o<!--E--></body>"}});
}

TEST(AttributeEditTest, GoesBeforeTheGreaterThan)
{
    ExpectEdits(OnLoad(), {{"<body>x", "<body onload=\"go(2)\" >x"},
                           {"<html>", "<html>"},
                           {"<body ", invalid},
                           {"<body onload=\"a()\">", "<body onload=\"a()\" onload=\"go(2)\" >"},
                           {Fill(32761) + "<body>", Fill(32761) + "<body onload=\"go(2)\" >"},
                           {Fill(32762) + "<body>", "overflow"},
                           {Fill(32767) + "<body", "overflow"}});
}

TEST(AttributeEditTest, ReplacesEveryExactCopyWhereverItsNameStands)
{
    ExpectEdits(OnLoad(),
                {{"<body onLoad=\"GO(1)\">", "<body onLoad=\"go(2)\">", "Y"},
                 {"<body onload=\"go(1)\">", "<body onload=\"go(1)\">", "N"},
                 {"<body onload=\"go(f(1),3)\">", "<body onload=\"go(2),3)\">", "Y"},
                 {"<body class=go>()", invalid, "Y"},
                 {"<body class=\"ego(1)\">", "<body class=\"ego(2)\">", "Y"},
                 {"<body a=\"go(1);go(1);go(3)\">", "<body a=\"go(2);go(2);go(3)\">", "Y"}});
    ExpectEdits(OnLoad(u"b"), {{"<body onload=\"b(1)\">", "<b(2)\">", "Y"}});
}

TEST(AttributeEditTest, IsEncodedAsOneEvenWithAScriptInIt)
{
    const FinishedPayload onLoad = OnLoad(u"g\u0142", u"('<script>\u0142')");
    FinishedPayload onUnload = base;
    onUnload.Effect.OnUnloadFunc = onLoad.Effect.OnLoadFunc;
    onUnload.Effect.OnUnloadArgs = onLoad.Effect.OnLoadArgs;
    ExpectEdits(onLoad, {{"<body>", "<body onload=\"g&#322;('<script>&#322;')\" >"}});
    ExpectEdits(onUnload, {{"<body>", "<body onunload=\"g&#322;('<script>&#322;')\" >"}});
}

TEST(WholeEditTest, PutsInAllFourPiecesAskingOnceForHeadAndBodyOrNone)
{
    ExpectEdits(All(),
                {{"<head>x</head><body>y</body>",
                  "<head>x«h»x</head>"
                  "<body onload=\"go(2)\"  onunload=\"stop()\" >y«b»y</body>"},
                 {"<head>x<!--B--><!--E--></head>"
                  "<body onload=\"go(1)\"  onunload=\"stop(9)\" >y<!--B--><!--E--></body>",
                  "<head>x\r\nx<!--B-->h<!--E-->\r\n</head>"
                  "<body onload=\"go(2)\"  onunload=\"stop()\" >y\r\ny<!--B-->b<!--E-->\r\n</body>",
                  "Y"},
                 {"<head>x</head>"
                  "<body onload=\"go(1)\" onunload=\"stop(9)\">y<!--B--><!--E--></body>",
                  "<head>x«h»x</head>"
                  "<body onload=\"go(1)\" onunload=\"stop()\">y\r\ny<!--B-->b<!--E-->\r\n</body>",
                  "YNY"},
                 {"<head>x</head><body>y<!--B--><!--E--></body>", "manual", "N"},
                 {"<head>x</head><body>y", invalid},
                 {"<head>x</head>" + Fill(32724) + "<body>y</body>", "overflow"}});
}

TEST(WholeEditTest, LooksForTheBodyInWhatTheHeadPutIn)
{
    FinishedPayload payload = OnLoad(u"go", u"");
    payload.Effect.HEADHTML = u"<body>";
    ExpectEdits(payload, {{"<head>x</head><body>y</body>",
                           "<head>x\r\n<body onload=\"go\" >\r\nx</head><body>y</body>"}});
}

TEST(ReplaceEffectInExistingCodeTest, HasNoPositionBehind32767)
{
    const auto replaced = [](std::string_view code) {
        return ReplaceEffectInExistingCode(code, "new", "<b>", "</b>");
    };
    EXPECT_EQ(replaced(Fill(32767) + "<b></b>"), Outcome<std::string>(Fault::Overflow));
    EXPECT_EQ(replaced("<b>" + Fill(32760) + "</b>?"), Outcome<std::string>(Fault::Overflow));
    EXPECT_EQ(replaced("<b>" + Fill(32759) + "</b>?"), Outcome<std::string>("new?"));
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
        EXPECT_EQ(Shown(Edit(page, payload)), "<head>\n\r\n<script>'" + script + "'</script>" +
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
    EXPECT_EQ(Shown(Edit("<head>\xC3\xA9</head>", payload)), first);
    const std::string second = "<head>\xC3\r\n\xC3\r\n<!--B-->\xC3\xA4<!--E-->\r\n\xC3\xA9\r\n"
                               "</head>";
    EXPECT_EQ(Shown(Edit(first, payload, "Y")), second);
}

} // namespace
} // namespace orvane::testing
