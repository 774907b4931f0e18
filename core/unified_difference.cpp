#include "core/unified_difference.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace orvane {

namespace {

using Lines = std::vector<std::string_view>;

/// The lines with their line feeds.
Lines LinesOf(std::string_view text)
{
    Lines lines;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

/// One line of an edit: kept (' '), taken out ('-') or put in ('+').
struct Edit
{
    char Sign;
    std::string_view Line;
};

/// The longest way of changes that is looked for; beyond it, everything between the first and the
/// last change is replaced.
constexpr std::ptrdiff_t mostChanges = 1000;

/// The shortest way from one text to the other, by the greedy algorithm of Myers.
class Comparison
{
public:
    Comparison(Lines before, Lines after) : m_before(std::move(before)), m_after(std::move(after))
    {
        while (m_same < std::min(m_before.size(), m_after.size()) &&
               m_before[m_same] == m_after[m_same])
            ++m_same;
        m_old = Signed(m_before.size());
        m_new = Signed(m_after.size());
        while (std::min(m_old, m_new) > Signed(m_same) && Old(m_old - 1) == New(m_new - 1)) {
            --m_old;
            --m_new;
        }
        m_old -= Signed(m_same);
        m_new -= Signed(m_same);
    }

    std::vector<Edit> Edits()
    {
        std::vector<Edit> middle;
        if (FindWay())
            middle = WayBack();
        else
            ReplaceAll(middle);
        std::vector<Edit> edits;
        for (std::size_t i = 0; i < m_same; ++i)
            edits.push_back({' ', m_before[i]});
        edits.insert(edits.end(), middle.begin(), middle.end());
        for (std::size_t i = m_same + Unsigned(m_old); i < m_before.size(); ++i)
            edits.push_back({' ', m_before[i]});
        return edits;
    }

private:
    using Place = std::ptrdiff_t;
    static Place Signed(std::size_t number) { return static_cast<Place>(number); }
    static std::size_t Unsigned(Place number) { return static_cast<std::size_t>(number); }
    std::string_view Old(Place place) const { return m_before[Unsigned(place)]; }
    std::string_view New(Place place) const { return m_after[Unsigned(place)]; }
    std::string_view OldInside(Place place) const { return Old(place + Signed(m_same)); }
    std::string_view NewInside(Place place) const { return New(place + Signed(m_same)); }

    /// How far the old text can be read on each diagonal, from -steps to steps, by this many steps.
    using Reach = std::vector<Place>;

    static Place At(const Reach& reach, Place steps, Place diagonal)
    {
        return reach[Unsigned(diagonal + steps)];
    }

    /// Where the step to the diagonal begins: from the one above (a line goes in) or below.
    static bool ComesFromAbove(const Reach& last, Place steps, Place diagonal)
    {
        return diagonal == -steps || (diagonal != steps && At(last, steps - 1, diagonal - 1) <
                                                               At(last, steps - 1, diagonal + 1));
    }

    bool FindWay()
    {
        for (Place steps = 0; steps <= mostChanges; ++steps) {
            Reach reach(Unsigned(2 * steps + 1));
            for (Place diagonal = -steps; diagonal <= steps; diagonal += 2) {
                Place old = 0;
                if (steps > 0)
                    old = ComesFromAbove(m_reaches.back(), steps, diagonal)
                              ? At(m_reaches.back(), steps - 1, diagonal + 1)
                              : At(m_reaches.back(), steps - 1, diagonal - 1) + 1;
                while (old < m_old && old - diagonal < m_new && old >= diagonal &&
                       OldInside(old) == NewInside(old - diagonal))
                    ++old;
                reach[Unsigned(diagonal + steps)] = old;
                if (old >= m_old && old - diagonal >= m_new) {
                    m_end = diagonal;
                    return true;
                }
            }
            m_reaches.push_back(std::move(reach));
        }
        return false;
    }

    std::vector<Edit> WayBack() const
    {
        std::vector<Edit> edits;
        Place old = m_old;
        Place diagonal = m_end;
        for (Place steps = Signed(m_reaches.size()); steps > 0; --steps) {
            const Reach& last = m_reaches[Unsigned(steps - 1)];
            const bool isFromAbove = ComesFromAbove(last, steps, diagonal);
            const Place from = diagonal + (isFromAbove ? 1 : -1);
            const Place begin = At(last, steps - 1, from);
            while (old > begin + (isFromAbove ? 0 : 1))
                edits.push_back({' ', OldInside(--old)});
            if (isFromAbove)
                edits.push_back({'+', NewInside(begin - from)});
            else
                edits.push_back({'-', OldInside(--old)});
            diagonal = from;
        }
        while (old > 0)
            edits.push_back({' ', OldInside(--old)});
        std::ranges::reverse(edits);
        return edits;
    }

    void ReplaceAll(std::vector<Edit>& edits) const
    {
        for (Place i = 0; i < m_old; ++i)
            edits.push_back({'-', OldInside(i)});
        for (Place i = 0; i < m_new; ++i)
            edits.push_back({'+', NewInside(i)});
    }

    Lines m_before;
    Lines m_after;
    std::size_t m_same = 0; ///< lines at the start that both have
    Place m_old = 0;        ///< lines between those and the equal ones at the end
    Place m_new = 0;
    std::vector<Reach> m_reaches;
    Place m_end = 0; ///< the diagonal on which both texts end
};

constexpr std::size_t around = 3;

std::string RangeOf(std::size_t line, std::size_t count)
{
    // An empty range is named by the line in front of it.
    return std::to_string(count == 0 ? line : line + 1) + "," + std::to_string(count);
}

/// Writes the edits from `begin` to `end`, in front of which both texts have these many lines.
void AddHunk(std::string& text, const std::vector<Edit>& edits, std::size_t begin, std::size_t end,
             std::size_t oldLine, std::size_t newLine)
{
    std::string lines;
    std::size_t olds = 0;
    std::size_t news = 0;
    for (std::size_t i = begin; i < end; ++i) {
        const auto& [sign, line] = edits[i];
        olds += sign != '+';
        news += sign != '-';
        lines += sign;
        lines += line;
        if (!line.ends_with('\n'))
            lines += "\n\\ No newline at end of file\n";
    }
    text += "@@ -" + RangeOf(oldLine, olds) + " +" + RangeOf(newLine, news) + " @@\n" + lines;
}

} // namespace

std::string UnifiedDifference(std::string_view before, std::string_view after,
                              std::string_view oldName, std::string_view newName)
{
    if (before == after)
        return {};
    const std::vector<Edit> edits = Comparison(LinesOf(before), LinesOf(after)).Edits();
    std::string text = "--- ";
    text.append(oldName).append("\n+++ ").append(newName).append("\n");
    std::size_t oldLine = 0;
    std::size_t newLine = 0;
    std::size_t passed = 0;
    const auto pass = [&](std::size_t to) {
        for (; passed < to; ++passed) {
            oldLine += edits[passed].Sign != '+';
            newLine += edits[passed].Sign != '-';
        }
    };
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (edits[i].Sign == ' ')
            continue;
        std::size_t last = i;
        for (std::size_t next = i; next < edits.size() && next <= last + 2 * around + 1; ++next)
            if (edits[next].Sign != ' ')
                last = next;
        const std::size_t begin = i - std::min(i - passed, around);
        pass(begin);
        const std::size_t end = std::min(edits.size(), last + 1 + around);
        AddHunk(text, edits, begin, end, oldLine, newLine);
        pass(end);
        i = end - 1;
    }
    return text;
}

} // namespace orvane
