#include "reedit/effect_words.h"

#include "core/catalogue.h"
#include "core/numbers.h"
#include "insertion/page_encoding.h"
#include "insertion/page_files.h"
#include "insertion/page_script.h"
#include "reedit/page_splices.h"
#include "reedit/taking_out.h"
#include "services/add_once.h"

#include <algorithm>

namespace orvane {

namespace {

/// Where the effect's blocks in the HEAD or in the body stand; empty when it has none there.
Text LinesOf(const EffectInPage& effect, PartPlace place, const PageLines& lines)
{
    std::vector<Text> numbers;
    for (const EffectPart& part : effect.Parts)
        if (part.Place == place)
            numbers.push_back(lines.LineOf(part.Span.Begin));
    if (numbers.empty())
        return {};
    const TextView where = place == PartPlace::Head ? u"in the head" : u"in the body";
    return Join({where, numbers.size() > 1 ? u", lines " : u", line ", Listed(numbers, u" and ")});
}

bool HasCalls(const EffectInPage& effect)
{
    return std::ranges::any_of(effect.Parts, [](const EffectPart& part) {
        return part.Place == PartPlace::OnLoad || part.Place == PartPlace::OnUnload;
    });
}

bool HasPageScriptLines(const EffectInPage& effect)
{
    return std::ranges::find(effect.Parts, PartPlace::PageScript, &EffectPart::Place) !=
           effect.Parts.end();
}

Text PlaceOf(const EffectInPage& effect, const PageLines& lines)
{
    std::vector<Text> places;
    for (const PartPlace place : {PartPlace::Head, PartPlace::Body})
        if (Text found = LinesOf(effect, place, lines); !found.empty())
            places.push_back(std::move(found));
    if (HasCalls(effect))
        places.emplace_back(u"in the BODY tag");
    return Listed(places, u"; ");
}

TextView WordsOf(EffectState state)
{
    switch (state) {
    case EffectState::Changed:
        return u"changed by hand";
    case EffectState::Half:
        return u"only half of it is there";
    case EffectState::Nested:
        return u"tangled with another effect";
    case EffectState::Whole:
        break;
    }
    return u"whole";
}

/// The code of the part as a piece of a page that names the same files.
std::string CodeOf(std::string_view page, const EffectPart& part)
{
    const std::string_view code = CodeIn(page, part.Span);
    if (part.Place == PartPlace::Head || part.Place == PartPlace::Body)
        return std::string(code);
    if (part.Place == PartPlace::PageScript)
        return {};
    const std::string_view quote = code.find('"') == std::string_view::npos ? "\"" : "'";
    return Join({"<BODY onload=", quote, code, quote, ">"});
}

std::vector<Text> FilesOf(std::string_view page, const EffectInPage& effect, PageEncoding encoding)
{
    std::string code;
    for (const EffectPart& part : effect.Parts)
        code += CodeOf(page, part);
    std::vector<Text> files = NamesInCode(code, encoding);
    if (HasPageScriptLines(effect))
        AddOnce(files, pageScriptFile);
    return files;
}

/// The lines of code, without the blanks around them; those without anything else are left out.
std::vector<Text> LinesIn(TextView code)
{
    std::vector<Text> lines;
    while (!code.empty()) {
        TextView line = TakeUntil(code, u'\n');
        if (line.ends_with(u'\r'))
            line.remove_suffix(1);
        if (line = Trim(line); !line.empty())
            lines.emplace_back(line);
    }
    return lines;
}

/// The first of the lines that a box has room for.
Text Shortened(std::vector<Text> lines)
{
    constexpr std::size_t mostLines = 12, mostLetters = 90;
    for (Text& line : lines)
        if (line.size() > mostLetters)
            line = line.substr(0, mostLetters) + u"\u2026";
    if (lines.size() > mostLines) {
        lines.resize(mostLines);
        lines.emplace_back(u"\u2026");
    }
    return Listed(lines, u"\r\n");
}

} // namespace

PageLines::PageLines(std::string_view page)
{
    for (std::size_t at = 0; at < page.size(); ++at)
        if (const std::size_t length = LineEndAt(page, at); length != 0)
            m_ends.push_back(at += length - 1);
}

Text PageLines::LineOf(std::size_t at) const
{
    const auto next = std::ranges::lower_bound(m_ends, at);
    return NumberToText(static_cast<double>(next - m_ends.begin() + 1));
}

Text TitleOf(const EffectInPage& effect)
{
    std::vector<Text> titles;
    for (const EffectKind kind : effect.Kinds)
        AddOnce(titles, RowOf(kind).Title);
    return titles.empty() ? effect.Name : Listed(titles, u" or ");
}

std::vector<ListedEffect> ListEffects(std::string_view page,
                                      const std::vector<EffectInPage>& effects)
{
    const PageLines lines(page);
    const PageEncoding encoding = EncodingOf(page);
    std::vector<ListedEffect> listed;
    for (const EffectInPage& effect : effects)
        listed.push_back(
            {.Picture = effect.Kinds.empty() ? TextView() : RowOf(effect.Kinds.front()).Picture,
             .Title = TitleOf(effect),
             .Place = PlaceOf(effect, lines),
             .State = WordsOf(effect.State),
             .Files = FilesOf(page, effect, encoding)});
    return listed;
}

Text SentenceOf(const ListedEffect& effect)
{
    const Text files =
        effect.Files.empty() ? Text() : Join({u", with the files ", Listed(effect.Files)});
    return Join({effect.Title, u", ", effect.Place, u", ", effect.State, files, u"."});
}

TextView WhyNotTouched(EffectState state)
{
    switch (state) {
    case EffectState::Half:
        return u"One of the two comments around this special effect is missing.  Orvane cannot tell "
               u"where it ends, so it leaves it as it is.";
    case EffectState::Nested:
        return u"This special effect and another one stand inside each other, so Orvane leaves both "
               u"as they are.";
    case EffectState::Whole:
    case EffectState::Changed:
        break;
    }
    return {};
}

Text QuestionToTakeOut(std::string_view page, const EffectInPage& effect)
{
    const PageEncoding encoding = EncodingOf(page);
    const std::string rest = Without(page, effect);
    const std::vector<Text> named = NamesInCode(rest, encoding);
    std::vector<Text> freed = FilesOf(page, effect, encoding);
    std::erase_if(freed, [&](const Text& name) { return std::ranges::count(named, name) > 0; });
    const bool linesGo = HasPageScriptLines(effect) && !HasPageScript(rest);
    Text question = Join(
        {u"Do you want to take \"", TitleOf(effect), u"\" out of your Web page?\r\n\r\n",
         u"What stands ", PlaceOf(effect, PageLines(page)), u" goes",
         linesGo ? u", and so do the lines of the page script." : u".", u"  No file is deleted."});
    if (!freed.empty())
        question += Join({u"\r\n\r\nNothing else in the page needs these files: ", Listed(freed)});
    return question;
}

Text QuestionToReplace(std::string_view page, const EffectInPage& effect,
                       const FinishedPayload& payload)
{
    const bool isUtf8 = EncodingOf(page) == PageEncoding::Utf8;
    std::vector<Text> kept = LinesIn(payload.Effect.HEADHTML);
    for (const Text& line : LinesIn(payload.Effect.BODYHTML))
        AddOnce(kept, line);
    std::vector<Text> lost;
    for (const EffectPart& part : effect.Parts) {
        if (part.Place != PartPlace::Head && part.Place != PartPlace::Body)
            continue;
        const std::string_view code = CodeIn(page, part.Span);
        for (const Text& line : LinesIn(isUtf8 ? FromUtf8(code) : FromWindows1252(code)))
            if (std::ranges::find(kept, line) == kept.end())
                lost.push_back(line);
    }
    if (lost.empty())
        return {};
    return Join(
        {u"Orvane does not know how this code in your Web page was made.  It gets lost when "
         u"the special effect is put back:\r\n\r\n",
         Shortened(std::move(lost)), u"\r\n\r\nDo you want to replace it?"});
}

} // namespace orvane
