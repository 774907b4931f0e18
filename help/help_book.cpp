#include "help/help_book.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace orvane {

namespace {

constexpr std::string_view topicSign = "=== ";
constexpr TextView effectsMark = u"«EffectsOfTags»";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view WithoutReturn(std::string_view line)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

/// The topic that a line begins, still without a body, or nothing.
std::optional<HelpTopic> TopicBegunBy(std::string_view line)
{
    if (!line.starts_with(topicSign))
        return std::nullopt;
    line.remove_prefix(topicSign.size());
    HelpTopic topic;
    const char* const end = line.data() + line.size();
    const auto [rest, error] = std::from_chars(line.data(), end, topic.Number);
    if (error != std::errc() || rest == end || *rest != ' ' || topic.Number < 0)
        return std::nullopt;
    topic.Title = Text(Trim(FromUtf8(std::string_view(rest, end))));
    return topic;
}

std::vector<TextView> WordsOf(TextView text)
{
    constexpr TextView separators = u" \t\r\n\u00A0";
    std::vector<TextView> words;
    std::size_t start = text.find_first_not_of(separators);
    while (start != TextView::npos) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(separators, end);
    }
    return words;
}

bool HoldsAll(TextView text, const std::vector<TextView>& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](TextView word) { return FindIgnoringCase(text, word) > 0; });
}

} // namespace

HelpBook ReadHelpBook(std::string_view bytes, TextView effectsOfTags)
{
    HelpBook book;
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    while (!bytes.empty()) {
        const std::string_view line = WithoutReturn(TakeUntil(bytes, '\n'));
        if (auto topic = TopicBegunBy(line))
            book.push_back(std::move(*topic));
        else if (!book.empty())
            book.back().Body.append(FromUtf8(line)).push_back(u'\n');
    }
    for (HelpTopic& topic : book)
        topic.Body = ReplaceAll(topic.Body, effectsMark, effectsOfTags);
    return book;
}

const HelpTopic* FindTopic(const HelpBook& book, int number)
{
    const auto found = std::find_if(book.begin(), book.end(), [number](const HelpTopic& topic) {
        return topic.Number == number;
    });
    return found == book.end() ? nullptr : &*found;
}

Text ShownText(TextView html)
{
    Text shown;
    shown.reserve(html.size());
    for (std::size_t place = 0; place < html.size();) {
        const std::size_t tag = std::min(html.find(u'<', place), html.size());
        shown.append(html.substr(place, tag - place));
        if (tag == html.size())
            break;
        shown.push_back(u' ');
        place = std::min(html.find(u'>', tag), html.size() - 1) + 1;
    }
    // The ampersand comes last, so that "&amp;lt;" shows "&lt;".
    for (const auto& [name, character] : {std::pair<TextView, TextView>{u"&lt;", u"<"},
                                          {u"&gt;", u">"},
                                          {u"&quot;", u"\""},
                                          {u"&nbsp;", u"\u00A0"},
                                          {u"&amp;", u"&"}})
        shown = ReplaceAll(shown, name, character);
    return shown;
}

std::vector<const HelpTopic*> SearchBook(const HelpBook& book, TextView words)
{
    const auto sought = WordsOf(words);
    std::vector<const HelpTopic*> hits;
    for (const HelpTopic& topic : book)
        if (HoldsAll(Join({topic.Title, u" ", ShownText(topic.Body)}), sought))
            hits.push_back(&topic);
    std::stable_partition(hits.begin(), hits.end(),
                          [&](const HelpTopic* topic) { return HoldsAll(topic->Title, sought); });
    return hits;
}

} // namespace orvane
