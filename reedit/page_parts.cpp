#include "reedit/page_parts.h"

#include "core/preview_pane.h"
#include "core/text.h"
#include "reedit/effect_cuts.h"
#include "reedit/page_places.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane {

namespace {

/// How an element counts.
enum class Shape
{
    Line,   ///< a part of a line of text, or unknown
    Block,  ///< a part
    Closed, ///< a part in which no other is
    Single, ///< a part without a close tag
    Frame,  ///< a table or list: no place is inside it but in its items
    Item,   ///< an item of such a one, whose inside is a part
    Row,    ///< what stands between the two
    Void,   ///< a part of a line of text, without a close tag
};

const std::map<std::string_view, Shape>& Shapes()
{
    static const std::map<std::string_view, Shape> shapes = [] {
        const std::pair<Shape, std::string_view> names[] = {
            {Shape::Block, "address article aside blockquote center details div fieldset figure "
                           "footer form header main nav section"},
            {Shape::Closed, "applet audio canvas h1 h2 h3 h4 h5 h6 iframe marquee object p pre "
                            "svg video"},
            {Shape::Single, "embed hr img"},
            {Shape::Frame, "dir dl menu ol select table ul"},
            {Shape::Item, "dd dt li td th"},
            {Shape::Row, "caption tbody tfoot thead tr"},
            {Shape::Void, "area base basefont bgsound br col frame input link meta param source "
                          "track wbr"},
        };
        std::map<std::string_view, Shape> all;
        for (auto [shape, rest] : names)
            while (!rest.empty())
                all.emplace(TakeUntil(rest, ' '), shape);
        return all;
    }();
    return shapes;
}

/// The name of a tag in small letters, without the slash of a close tag.
std::string NameOf(std::string_view tag)
{
    tag.remove_prefix(tag.starts_with("</") ? 2 : 1);
    std::string name(tag.substr(0, tag.find_first_of("\t\n\f\r />")));
    for (char& letter : name)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter | 0x20) : letter;
    return name;
}

constexpr std::size_t none = std::string_view::npos;

/// Reads the elements of a page, close tags that may be left out among them.
class PartReader
{
public:
    void Open(std::string_view page, CodeSpan tag)
    {
        std::string name = NameOf(CodeIn(page, tag));
        const auto known = Shapes().find(name);
        const Shape shape = known == Shapes().end() ? Shape::Line : known->second;
        if (shape != Shape::Line && shape != Shape::Void && shape != Shape::Single)
            EndParagraph(tag.Begin);
        if (shape == Shape::Item || shape == Shape::Row)
            EndItems(shape, tag.Begin);
        const bool isItem = shape == Shape::Item;
        const bool isPlace = m_open.empty() || m_open.back().HasPlaces;
        std::size_t part = none;
        if (isItem || (isPlace && IsPart(shape))) {
            part = m_parts.size();
            m_parts.push_back({tag, isItem ? tag.End : tag.Begin, tag.End});
        }
        if (shape == Shape::Single || shape == Shape::Void)
            return;
        const bool hasPlaces =
            isItem || (isPlace && (shape == Shape::Block || (shape == Shape::Line && name != "a" &&
                                                             name != "button" && name != "label")));
        ++m_count[name];
        m_open.push_back({std::move(name), shape, part, hasPlaces});
    }

    void Close(std::string_view page, CodeSpan tag)
    {
        const std::string name = NameOf(CodeIn(page, tag));
        const auto count = m_count.find(name);
        if (count == m_count.end() || count->second == 0)
            return;
        while (m_open.back().Name != name)
            End(tag.Begin);
        End(m_open.back().Form == Shape::Item ? tag.Begin : tag.End);
    }

    std::vector<PagePart> TakeParts(std::size_t end)
    {
        while (!m_open.empty())
            End(end);
        return std::move(m_parts);
    }

private:
    struct Element
    {
        std::string Name;
        Shape Form;
        std::size_t Part;
        bool HasPlaces;
    };

    static bool IsPart(Shape shape)
    {
        return shape == Shape::Block || shape == Shape::Closed || shape == Shape::Single ||
               shape == Shape::Frame;
    }

    void End(std::size_t at)
    {
        if (m_open.back().Part != none)
            m_parts[m_open.back().Part].After = at;
        --m_count[m_open.back().Name];
        m_open.pop_back();
    }

    void EndParagraph(std::size_t at)
    {
        if (!m_open.empty() && m_open.back().Name == "p")
            End(at);
    }

    /// A new item ends the one before it, and a new row the one before it.
    void EndItems(Shape shape, std::size_t at)
    {
        while (!m_open.empty() && m_open.back().Form != Shape::Frame &&
               (m_open.back().Form != Shape::Row || shape == Shape::Row))
            End(at);
    }

    std::vector<PagePart> m_parts;
    std::vector<Element> m_open;
    std::map<std::string, int, std::less<>> m_count; ///< of open elements, by name
};

/// The blocks of effects between which parts lie.
std::vector<CodeSpan> EffectsOf(std::string_view page)
{
    std::vector<CodeSpan> spans;
    for (const EffectInPage& effect : EffectsIn(page))
        for (const EffectPart& part : BlocksOf(effect))
            spans.push_back(part.Span);
    std::ranges::sort(spans, {}, &CodeSpan::Begin);
    return spans;
}

} // namespace

std::vector<PagePart> PartsOf(std::string_view page)
{
    PartReader reader;
    const std::size_t end = EndOf(page);
    for (Markup markup = NextMarkup(page, TopOf(page)); markup.Whole.Begin < end;
         markup = NextMarkup(page, markup.Next)) {
        const std::string_view tag = CodeIn(page, markup.Whole);
        if (tag.starts_with("</"))
            reader.Close(page, markup.Whole);
        else if (!tag.starts_with("<!") && tag.ends_with('>'))
            reader.Open(page, markup.Whole);
    }
    std::vector<PagePart> parts = reader.TakeParts(end);
    const std::vector<CodeSpan> effects = EffectsOf(page);
    std::size_t done = 0;
    std::erase_if(parts, [&](PagePart& part) {
        const auto behind = std::ranges::upper_bound(effects, part.Tag.Begin, {}, &CodeSpan::Begin);
        if (behind == effects.begin() || part.Tag.Begin >= std::prev(behind)->End)
            return false;
        const CodeSpan effect = *std::prev(behind);
        part.Before = effect.Begin;
        part.After = effect.End + LineEndAt(page, effect.End);
        return std::exchange(done, effect.End) == effect.End;
    });
    return parts;
}

std::string WithPartNumbers(std::string_view page, const std::vector<PagePart>& parts)
{
    std::vector<Splice> numbers;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::string name = NameOf(CodeIn(page, parts[i].Tag));
        const std::size_t at = parts[i].Tag.Begin + 1 + name.size();
        numbers.push_back({{at, at}, Join({" ", partAttribute, "=\"", std::to_string(i), "\""})});
    }
    return Spliced(page, std::move(numbers));
}

} // namespace orvane
