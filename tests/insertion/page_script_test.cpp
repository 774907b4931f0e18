#include "insertion/page_script.h"

#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <utility>

namespace orvane::testing {
namespace {

const std::string lines = "<!-- Begin Orvane page script -->\r\n"
                          "<SCRIPT SRC=\"orvane.js\"></SCRIPT>\r\n"
                          "<!-- End Orvane page script -->";

std::string AuthorsPage(const std::string& name)
{
    std::ifstream file(ORVANE_PAGES_FOLDER "/" + name + ".html", std::ios::binary);
    EXPECT_TRUE(file) << name;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// A page, cut where the lines belong; a page without a place for them has no second part.
struct Place
{
    const char* Name;
    std::string Front;
    std::string Back;
};

Place InFile(const char* name, const std::string& headTag)
{
    const std::string page = AuthorsPage(name);
    const std::size_t behind = page.find(headTag) + headTag.size();
    return {name, page.substr(0, behind), page.substr(behind)};
}

const std::vector<Place>& Places()
{
    static const std::vector<Place> places = {
        InFile("by_hand", "<head>"),
        InFile("doctype_and_css", "<head>"),
        InFile("by_an_editor", "<HEAD>"),
        InFile("shift_jis", "<head>"),
        InFile("comments_first", "<head>"),
        {"Bare", "<head>", "</head><body>"},
        {"Attributes", "<html><HeAd\r\n profile='a>b' >", "\n<title>x</title></head>"},
        {"InComment", "<!-- <head> --><!DOCTYPE html>\n<head>", "x</head>"},
        {"InScript", "<script>document.write('<head>')</script><html><head>", "</head>"},
        {"InTitle", "<title>The <head> tag</title><head>", "</head>"},
        {"InServerCode", "<?php echo '<head>' ?><% \"<head>\" %><head>", "</head>"},
        {"OddBytes", std::string("\xFF\0\x80<head>", 9), std::string("\0\xE9</head>", 9)},
        {"Header", "<header><head>", ""},
        {"NoHead", "<html><title>x</title><body><p>Hello</body></html>", ""},
        {"HeadInBody", "<html><body>x<head>y</head></body></html>", ""},
        {"NoTagEnd", "<html><head ", ""},
        {"Utf16", std::string("\xFF\xFE<\0h\0e\0a\0d\0>\0", 14), ""},
    };
    return places;
}

TEST(PageScriptTest, StandsDirectlyBehindTheHeadTagAndGoesWithoutATrace)
{
    for (const Place& place : Places()) {
        SCOPED_TRACE(place.Name);
        const std::string page = place.Front + place.Back;
        const bool hasPlace = !place.Back.empty() || place.Front == "<header><head>";
        const std::string scripted = WithPageScript(page);
        ExpectSameBytes(hasPlace ? place.Front + lines + place.Back : page, scripted);
        EXPECT_EQ(HasPageScript(scripted), hasPlace);
        ExpectSameBytes(page, WithoutPageScript(scripted));
        ExpectSameBytes(scripted, WithPageScript(scripted));
    }
}

FinishedPayload Ticker(bool runsToday)
{
    FinishedPayload payload = Finish({.Kind = EffectKind::StatusBarTicker,
                                      .HEADHTML = u"<SCRIPT>function go(n) {}</SCRIPT>\r\n",
                                      .BODYHTML = u"<P>Hello</P>\r\n",
                                      .OnLoadFunc = u"go",
                                      .OnLoadArgs = u"('é;x')"});
    payload.WantsPageScript = runsToday;
    return payload;
}

std::string Delivered(const std::string& page, bool runsToday)
{
    const auto edit = EditPageAndScript(page, Ticker(runsToday), [] { return true; });
    const auto* edited = std::get_if<EditedPage>(&edit);
    return edited ? edited->Bytes : "the author was sent away";
}

TEST(PageScriptTest, ComesOnceIntoAPageHoweverOftenAndFromWhereverItIsDelivered)
{
    for (const Place& place : Places()) {
        const std::string page = place.Front + place.Back;
        const std::string classic = Delivered(page, false);
        EXPECT_EQ(EditPageAndScript(page, Ticker(false), [] { return true; }),
                  EditPage(page, Ticker(false), [] { return true; }))
            << place.Name << ": without it a delivery is the old one";
        if (!HasPageScript(WithPageScript(page)) || page == classic)
            continue;
        SCOPED_TRACE(place.Name);
        const std::string expected = WithPageScript(classic);
        ExpectSameBytes(expected, Delivered(page, true));
        ExpectSameBytes(expected, Delivered(WithPageScript(page), false));
        ExpectSameBytes(expected, Delivered(place.Front + place.Back + lines, true));
        ExpectSameBytes(WithPageScript(Delivered(classic, false)), Delivered(expected, true));
    }
}

TEST(PageScriptTest, LeavesWhatOnlyLooksLikeTheLines)
{
    const std::string decoys[] = {
        "<head><!-- " + lines + " --></head>",
        "<head><!-- Begin Orvane page script -->\r\n<script src=orvane.js></script>mine"
        "<!-- End Orvane page script --></head>",
        "<head><!-- Begin Orvane page script --><script src=other.js></script>"
        "<!-- End Orvane page script --></head>",
        "<head><script>x = '<!-- Begin Orvane page script -->'</script></head>",
        "<head></head><textarea>" + lines + "</textarea>",
        "<head><!-- Begin Orvane page script -->",
    };
    for (const std::string& page : decoys)
        ExpectSameBytes(page, WithoutPageScript(page));
}

TEST(PageScriptTest, TakesAllCopiesOfTheLinesOutInOnePass)
{
    std::string page, rest;
    for (int i = 0; i < 10000; ++i) {
        page += lines + "<p>";
        rest += "<p>";
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(WithoutPageScript(page), rest);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(PageScriptTest, MovesLinesThatTheAuthorHasChangedAsTheyAre)
{
    const std::string changed = "<!-- Begin Orvane page script -->\n"
                                "<script defer src='/js/orvane.js'></script>"
                                "<!-- End Orvane page script -->";
    const std::string page = Delivered("<head>\n" + changed + "</head><body></body>", true);
    EXPECT_TRUE(page.starts_with("<head>" + changed + "\n\r\n<!-- *****")) << page;
}

TEST(PageScriptTest, CarriesTheCallsThatTheBodyTagCouldNotTake)
{
    const std::pair<const char*, const char*> cases[] = {
        {"<body>", "<SCRIPT SRC=\"orvane.js\"></SCRIPT>"},
        {"<body ONLOAD='mine()'>",
         "<SCRIPT SRC=\"orvane.js\" data-onload=\"go('\xE9;x')\"></SCRIPT>"},
        {"<body onload='mine()' onload='mine(2)' onunload=bye()>",
         "<SCRIPT SRC=\"orvane.js\" data-onload=\"go('\xE9;x')\"></SCRIPT>"},
        {"<body onload=a() onload=\"window.open('b','c','width=1,toolbar=no,status=no')\" "
         "onunload=a() onunload=\"window.open('d','','width=1,toolbar=no,status=no')\">",
         "<SCRIPT SRC=\"orvane.js\" "
         "data-onload=\"window.open('b','c','width=1,toolbar=no,status=no');go('\xE9;x')\" "
         "data-onunload=\"window.open('d','','width=1,toolbar=no,status=no')\"></SCRIPT>"},
        {"<body onload=a() onload='window.open(\"b\",\"c\",\"width=1,toolbar=no\")'>",
         "<SCRIPT SRC=\"orvane.js\" data-onload=\"window.open(&quot;b&quot;,&quot;c&quot;,"
         "&quot;width=1,toolbar=no&quot;);go('\xE9;x')\"></SCRIPT>"},
    };
    for (const auto& [bodyTag, scriptLine] : cases) {
        const std::string page = std::string("<head></head>") + bodyTag + "</body>";
        const std::string once = Delivered(page, true);
        for (const std::string& delivered : {once, Delivered(once, false)})
            EXPECT_NE(delivered.find(std::string("\r\n") + scriptLine + "\r\n"), std::string::npos)
                << delivered;
    }
}

} // namespace
} // namespace orvane::testing
