#include "reedit/effects_in_page.h"

#include "core/effect_markers.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane::testing {
namespace {

/// "[Name" stands for the comment with which an effect begins, "Name]" for that with which it ends.
std::string Page(std::string page)
{
    for (const std::string name : {"Password", "Popup Window", "Slideshow", "Sound", "Other"}) {
        const EffectMarkers markers = MarkersOf(FromUtf8(name));
        page = ReplaceAll(page, "[" + name, ToBytes(markers.Begin));
        page = ReplaceAll(page, name + "]", ToBytes(markers.End));
    }
    return page;
}

/// Each effect as its state, its name and its places, in short.
std::string Listed(const std::string& page)
{
    const char states[] = {'W', 'C', 'H', 'N'};
    const char places[] = {'h', 'b', 'l', 'u', 's'};
    std::string listed;
    for (const EffectInPage& effect : EffectsIn(page)) {
        listed += std::string(listed.empty() ? "" : " ") + states[static_cast<int>(effect.State)] +
                  ToUtf8(effect.Name) + ":";
        for (const EffectPart& part : effect.Parts)
            listed += places[static_cast<int>(part.Place)];
    }
    return listed;
}

const std::string script = "<!-- Begin Orvane page script --><SCRIPT SRC=\"orvane.js\"></SCRIPT>"
                           "<!-- End Orvane page script -->";

TEST(EffectsInTest, ListsWhatABrowserSeesAndNothingElse)
{
    const std::pair<std::string, std::string> rows[] = {
        {"<body>[Sound\r\nSound]", "WSound:b"},
        {"\xFF\xFE[Sound\r\nSound]\0\xE9", "WSound:b"},
        {"<head>[Sound\nSound]</head><body>[Sound\rSound]<p>[Sound\r\nSound]", "WSound:hbb"},
        {"<body>[Sound\r\nSound][Sound\r\nSound]", "WSound:b WSound:b"},
        {"<body>[Other\r\nOther]", "WOther:b"},
        {"<body>[Sound by hand\r\nSound]", "CSound:b"},
        {"<body>[Sound\r\n[Slideshow", "HSound:b HSlideshow:b"},
        {"<body>Sound][Sound\r\n", "HSound:b HSound:b"},
        {"<body>[Sound\r\n[Slideshow\r\nSlideshow]Sound]", "NSound:b NSlideshow:b"},
        {"<body>[Sound\r\n[Slideshow\r\nSound]Slideshow]", "NSound:b HSlideshow:b HSlideshow:b"},
        {"<body>[Sound\r\n[Sound\r\nSound][Slideshow\r\nSlideshow]",
         "HSound:b WSound:b WSlideshow:b"},
        {"<script>'[Sound\r\nSound]'</script><style>[Sound\r\nSound]</style><textarea>[Sound\r\n"
         "Sound]</textarea><title>[Sound\r\nSound]</title><p class='[Sound'>",
         ""},
        {"<!-- [Sound\r\nSound]", "HSound:b"},
    };
    for (const auto& [page, expected] : rows)
        EXPECT_EQ(Listed(Page(page)), expected) << page;
}

TEST(EffectsInTest, KnowsACallByTheScriptThatDeclaresItsFunction)
{
    const std::string head = "<head>[Slideshow\r\nfunction go(n) {}Slideshow]</head>";
    const std::pair<std::string, std::string> rows[] = {
        {"<body onload=\"go('a;)')\">", "WSlideshow:hl"},
        {"<body onLoad='mine(); go(\")\");x' onload=go() ONUNLOAD=go(&quot;;&quot;)>",
         "WSlideshow:hllu"},
        {"<body onload=\"gone()\" onload=\"return go()\" onload=\"ago()\" title=\"go()\">",
         "WSlideshow:h"},
        {"<body onload=\"window.open('a','','toolbar=no')\">", "WSlideshow:h"},
        {"<body onunload=\"window.open('a','','width=1,toolbar=no')\">",
         "WSlideshow:h WPopup Window:u"},
    };
    for (const auto& [body, expected] : rows)
        EXPECT_EQ(Listed(Page(head + body)), expected) << body;
}

TEST(EffectsInTest, TellsWhichEffectsNeedThePageScript)
{
    EXPECT_EQ(Listed(Page("<head>" + script +
                          "</head><body>[Slideshow\r\nSlideshow][Sound\r\n"
                          "<div data-orvane=\"sound-1\"></div>Sound]")),
              "WSlideshow:bs WSound:b");
    const auto effects = EffectsIn(Page("<body>[Sound\r\nSound][Other\r\nOther]"));
    EXPECT_EQ(effects.at(0).Kinds, (std::vector{EffectKind::SoundReserved, EffectKind::Sound}));
    EXPECT_TRUE(effects.at(1).Kinds.empty());
}

} // namespace
} // namespace orvane::testing
