#include "reedit/page_parts.h"

#include "core/effect_markers.h"

#include <gtest/gtest.h>

#include <regex>

namespace orvane::testing {
namespace {

/// The page with "(" in front of each part and ")" behind it.
std::string Marked(const std::string& page)
{
    std::multimap<std::size_t, char> marks;
    for (const PagePart& part : PartsOf(page)) {
        marks.emplace(part.Before, '(');
        marks.emplace(part.After, ')');
    }
    std::string marked;
    for (std::size_t at = 0; at <= page.size(); ++at) {
        for (const char mark : {')', '('})
            for (auto [it, end] = marks.equal_range(at); it != end; ++it)
                if (it->second == mark)
                    marked += mark;
        marked += page.substr(at, 1);
    }
    return marked;
}

TEST(PagePartsTest, AreWhereAnEffectCanStand)
{
    const char* const pages[] = {
        "<head><title><p></title></head><body>x(<p>a <b>c</b> <img></p>) (<hr>)</body><p>",
        "(<div>(<P>one)(<p>two)(<DIV>x</div>)y</div>)",
        "(<table><tr><td>(a)<td>((<p>x</p>))</td></tr><form><tr><th>(<b>(<img>)</b>)</table>)",
        "(<ul><li>(a (<ul><li>(b)</ul>))<li>(c)</ul>)(<h1><a><img></a></h1>)",
        "<a href=x><img></a>(<center>(<img>)</i></center>)(<iframe><p></iframe>)<script><p></script>",
        "(<div>(<p>)</div>)</div>",
    };
    for (const std::string marked : pages) {
        std::string page = marked;
        std::erase_if(page, [](char sign) { return sign == '(' || sign == ')'; });
        EXPECT_EQ(Marked(page), marked);
        const std::string numbered = Marked(WithPartNumbers(page, PartsOf(page)));
        EXPECT_EQ(std::regex_replace(numbered, std::regex(" data-orvane-part=\"\\d+\""), ""),
                  marked);
    }
}

TEST(PagePartsTest, AnEffectIsOne)
{
    const EffectMarkers markers = MarkersOf(u"Sound");
    const std::string effect = ToBytes(Join({markers.Begin, u"\n<p>a</p><p>b</p>", markers.End}));
    const std::string page = "<body><p>x</p>" + effect + "\n<p>y</p>" + effect + "</body>";
    EXPECT_EQ(Marked(page), "<body>(<p>x</p>)(" + effect + "\n)(<p>y</p>)(" + effect + ")</body>");
}

} // namespace
} // namespace orvane::testing
