#include "tests/sessions/session_pages.h"

#include "core/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <utility>

namespace orvane::testing {

const std::array<SessionEffect, 5> sessionEffects = {
    {{EffectKind::StatusBarTicker, {"txtStatusBarText"}, "scrollit_r2l(99)"},
     {EffectKind::PopupAlert, {"txtAlertText"}},
     {EffectKind::TypewriterText, {"TypedText", "AppletWidth", "AppletHeight"}},
     {EffectKind::FlashingText, {"txtText"}},
     {EffectKind::SwirlyText, {"txtText"}}}};

std::string SessionEffect::Name() const
{
    return ToUtf8(RowOf(Kind).MarkerName);
}

std::string SessionEffect::Title() const
{
    return ToUtf8(RowOf(Kind).Title);
}

namespace {

constexpr auto npos = std::string::npos;

const std::string authorsPages[] = {
    "<html><head>\n<title>x</title>\r\n</head>\n<body onload='mine()'>\n<p>one</p>\t \r<p>two</p>\n"
    "</body></html>",
    "\xEF\xBB\xBF<!DOCTYPE html>\n<HTML lang=en><HEAD>\n<meta charset=utf-8>\n</HEAD>\n"
    "<BODY bgcolor=\"#ffffff\">\n<p>\xC3\xA4pfel &amp; \xE2\x82\xAC</p>\n\n\n<div>two  </div>\n"
    "</BODY></HTML>\n",
    "<html>\n<head>\n<script>var x = '<p>';</script></head>\n<body>\n<!-- \x80\xE4\xFF --><p>one\n"
    "<textarea><!-- ***** Begin:Varlo Sound special effect ***** --></textarea>\n</body>\n</html>",
    "<body>\n<p>no head\r\n</body>\r\n"};

using Block = std::pair<std::string, std::string>; ///< an effect's name, and its code

/// Takes the stretch from one place through the next such words out of the page and gives it.
std::string TakeOut(std::string& page, std::size_t at, const std::string& last)
{
    const std::size_t end = page.find(last, at);
    const std::string taken = end == npos ? "" : page.substr(at, end + last.size() - at);
    page.erase(at, taken.size());
    return taken;
}

/// What stands in a page, found by plain search, without the program's own reader.
struct OutsideReading
{
    explicit OutsideReading(std::string page)
    {
        for (std::size_t at; (at = page.find("<!-- Begin Orvane page script -->")) != npos;)
            if (TakeOut(page, at, "<!-- End Orvane page script -->").empty())
                return;
        TakeBlocks(page);
        TakeCalls(page);
        Authors = page;
    }

    void TakeBlocks(std::string& page)
    {
        std::set<std::string> inHead;
        for (std::size_t at = 0; (at = page.find("<!-- ***** Begin:Varlo ", at)) != npos;) {
            const auto effect = std::ranges::find_if(sessionEffects, [&](const auto& known) {
                return page.substr(at + 23).starts_with(known.Name() + " special effect *");
            });
            if (effect == sessionEffects.end() && ++at > 0)
                continue; // the author's own words
            const bool isInHead = at < std::min(page.find("<body"), page.find("<BODY"));
            Wrong = "half of " + effect->Name();
            const std::string name = effect->Name(), tail = name + " special effect ***** -->";
            Blocks.emplace_back(name, TakeOut(page, at, "<!-- ***** End:Varlo " + tail));
            if (Blocks.back().second.empty() ||
                Blocks.back().second.find("Begin:Varlo", 30) != npos)
                return;
            if (!inHead.contains(name))
                Titles.push_back(effect->Title());
            if (isInHead)
                inHead.insert(name);
        }
        std::ranges::sort(Blocks);
        Wrong = page.find("End:Varlo") == npos ? "" : "an end without a beginning";
    }

    /// Takes the calls out of the BODY tag; one stands there for each effect that has one.
    void TakeCalls(std::string& page)
    {
        for (const SessionEffect& effect : sessionEffects) {
            const std::string call(effect.Call);
            long calls = 0;
            for (const std::string& words :
                 {" onload=\"" + call + "\" ", " onLoad=\"" + call + "\"", call + ";"})
                for (std::size_t at; !call.empty() && (at = page.find(words)) != npos; ++calls)
                    page.erase(at, words.size());
            if (!call.empty() && calls != std::ranges::count(Titles, effect.Title()))
                Wrong = effect.Title() + ": " + std::to_string(calls) + " calls";
        }
    }

    std::string Authors;             ///< what is left: the author's part, with more line ends
    std::vector<std::string> Titles; ///< of the effects, in the order of the page
    std::vector<Block> Blocks;       ///< sorted
    std::string Wrong = "half of the page script"; ///< empty where all is well
};

/// Whether it is this author's part, byte for byte, with line ends put in.
bool IsWithLineEnds(std::string_view authors, std::string_view found)
{
    for (const char sign : found)
        if (authors.starts_with(sign))
            authors.remove_prefix(1);
        else if (sign != '\r' && sign != '\n')
            return false;
    return authors.empty();
}

/// In a page that the program made, line ends come and go with the effect.
std::string WithoutLineEnds(std::string authors)
{
    std::erase_if(authors, [](char sign) { return sign == '\r' || sign == '\n'; });
    return authors;
}

/// The blocks of the first that are not among those of the second.
std::vector<Block> Without(const std::vector<Block>& first, const std::vector<Block>& second)
{
    std::vector<Block> left;
    std::ranges::set_difference(first, second, std::back_inserter(left));
    return left;
}

} // namespace

SessionPages::SessionPages(const TestFolder& home, std::size_t page) : m_home(home)
{
    const std::string& bytes = authorsPages[page % std::size(authorsPages)];
    home.Put("site/a.html", bytes);
    m_pages["a.html"] = {{bytes, bytes}};
}

bool SessionPages::Look(const SessionStep& step)
{
    bool isWritten = false;
    for (const std::string name : {"a.html", "new.html"}) {
        const auto bytes = m_home.Get("site/" + name);
        Versions& versions = m_pages[name];
        EXPECT_TRUE(bytes || versions.empty()) << name << " is gone";
        if (!bytes || (!versions.empty() && versions.back().Bytes == *bytes))
            continue;
        isWritten = true;
        EXPECT_TRUE(step.MayWrite) << name;
        if (versions.empty() || (step.SavesNewPage && name == "new.html"))
            versions = {{*bytes, WithoutLineEnds(OutsideReading(*bytes).Authors)}};
        else
            LookAt(name, versions, *bytes, step);
    }
    m_mayLitter = step.IsTroubled || (m_mayLitter && !isWritten);
    LookForLitter();
    return isWritten;
}

/// The page holds other bytes than before the step.
void SessionPages::LookAt(const std::string& name, Versions& versions, const std::string& bytes,
                          const SessionStep& step) const
{
    // The others' page has left its place already, and nobody is there to give it back.
    if (step.IsKilled && step.IsOvertaken && IsLeftOver(versions.back().Bytes))
        versions.pop_back();
    const Version before = versions.back();
    const auto earlier = std::ranges::find(versions, bytes, &Version::Bytes);
    const bool isEarlier = earlier != versions.end();
    const std::string authors = isEarlier && step.BringsBack ? earlier->Authors : before.Authors;
    const OutsideReading was(before.Bytes), is(bytes);
    EXPECT_EQ(is.Wrong, "") << bytes;
    EXPECT_TRUE(IsWithLineEnds(authors, is.Authors)) << bytes << "\n-- was:\n" << before.Bytes;
    EXPECT_TRUE(IsKept(name, before.Bytes)) << "no backup";
    const auto added = Without(is.Blocks, was.Blocks), gone = Without(was.Blocks, is.Blocks);
    for (const auto& [effect, code] : isEarlier ? std::vector<Block>() : added) {
        EXPECT_EQ(effect, step.Name);
        EXPECT_NE(code.find(step.Words), npos) << step.Words << "\n" << code;
    }
    for (const auto& [effect, code] : step.BringsBack ? std::vector<Block>() : gone)
        EXPECT_EQ(effect, added.empty() ? gone.front().first : added.front().first);
    // What is taken out directly after it was put in leaves nothing behind.
    const Version& old = versions[versions.size() - std::min<std::size_t>(versions.size(), 2)];
    if (added.empty() && !gone.empty() && old.Authors == authors &&
        OutsideReading(old.Bytes).Blocks == is.Blocks) {
        EXPECT_EQ(bytes, old.Bytes);
    }
    versions.push_back({bytes, authors});
}

void SessionPages::SaveByOthers(const std::string& name)
{
    if (m_pages[name].empty())
        return;
    Version version = m_pages[name].back();
    const std::string words = "<p>hers " + std::to_string(++m_saves) + "</p>\n";
    for (std::string* text : {&version.Bytes, &version.Authors})
        text->insert(std::min(text->rfind("</"), text->size()), words);
    m_home.Put("site/" + name, version.Bytes);
    m_pages[name].push_back(std::move(version));
}

void SessionPages::CompareList(const std::string& path,
                               const std::vector<std::string>& titles) const
{
    for (const auto& [name, versions] : m_pages)
        if (path == m_home.At("site/" + name) && !versions.empty()) {
            EXPECT_EQ(titles, OutsideReading(versions.back().Bytes).Titles);
        }
}

/// Whether these bytes are a backup of the page.
bool SessionPages::IsKept(const std::string& name, const std::string& bytes) const
{
    const std::string place = "home/state/first-backups/";
    return m_home.Get("site/Backup of " + name) == bytes ||
           std::ranges::any_of(m_home.Names(place), [&](const std::string& day) {
               return m_home.Get(place + day + m_home.At("site/" + name)) == bytes;
           });
}

/// Whether a file with these bytes lies beside the page, under a name of the program's own.
bool SessionPages::IsLeftOver(const std::string& bytes) const
{
    return std::ranges::any_of(m_home.Names("site"), [&](const std::string& name) {
        return name.starts_with(".orvane-") && m_home.Get("site/" + name) == bytes;
    });
}

void SessionPages::LookForLitter() const
{
    static const std::regex known(
        "(Backup of )?(a|new)\\.html|orvane\\.js|ovtemp\\.html|mine\\.ovr|.*\\.class");
    for (const std::string& name : m_home.Names("site"))
        EXPECT_TRUE(std::regex_match(name, known) ||
                    (m_mayLitter && name.starts_with(".orvane-")) ||
                    std::filesystem::is_directory(m_home.At("site/" + name)))
            << "nobody knows the file " << name;
}

} // namespace orvane::testing
