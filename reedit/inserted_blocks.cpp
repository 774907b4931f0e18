#include "reedit/inserted_blocks.h"

#include "core/text.h"
#include "insertion/page_script_lines.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr std::string_view crLf = "\r\n";
constexpr std::size_t frontSize = 3; // the doubled character and a line end

bool HasCrLf(std::string_view page, std::size_t at)
{
    return at <= page.size() && page.substr(at, crLf.size()) == crLf;
}

/// The cut that takes out the character at that place, or null. Expects cuts in the page's order.
const CodeSpan* CutAt(const std::vector<CodeSpan>& cuts, std::size_t at)
{
    const auto behind = std::ranges::upper_bound(cuts, at, {}, &CodeSpan::Begin);
    if (behind == cuts.begin() || std::prev(behind)->End <= at)
        return nullptr;
    return &*std::prev(behind);
}

} // namespace

InsertedBlocks::InsertedBlocks(std::string_view page, const std::vector<EffectPart>& blocks)
    : m_page(page)
{
    for (const EffectPart& block : blocks)
        m_blockEnds.emplace(block.Span.Begin, block.Span.End);
    if (const auto lines = FindPageScriptLines(page))
        m_lines = lines->Whole;
    m_chains = {ReadChain("<head", "</head"), ReadChain("<body", "</body")};
}

InsertedBlocks::Chain InsertedBlocks::ReadChain(std::string_view tag,
                                                std::string_view closeTag) const
{
    // The tags are found as an insertion finds them; one without ">" ends where the page begins.
    const std::size_t tagPlace = FindIgnoringCase(m_page, tag);
    Chain chain{.CloseTag = FindIgnoringCase(m_page, closeTag, tagPlace)};
    if (tagPlace == 0)
        return chain;
    std::size_t at = Find(m_page, ">", tagPlace);
    for (bool goesOn = true; goesOn;) {
        const std::size_t begin = BehindOthers(at);
        goesOn = begin != at || chain.Runs.empty();
        if (goesOn)
            at = ReadRun(chain, begin);
    }
    return chain;
}

/// The place behind what stands there without a doubled character: lines of the page script, and
/// blocks that no insertion put there.
std::size_t InsertedBlocks::BehindOthers(std::size_t at) const
{
    for (;;) {
        const auto block = m_blockEnds.find(at);
        if (m_lines && m_lines->Begin == at)
            at = m_lines->End;
        else if (block != m_blockEnds.end())
            at = block->second + LineEndAt(m_page, block->second);
        else
            return at;
    }
}

/// Reads the blocks between which one character is doubled; gives the place behind them.
std::size_t InsertedBlocks::ReadRun(Chain& chain, std::size_t at) const
{
    const std::string_view doubled = m_page.substr(at, 1);
    Run run{.End = at};
    std::size_t replacements = 0;
    while (at < m_page.size() && m_page.substr(at, 1) == doubled && HasCrLf(m_page, at + 1)) {
        const auto block = m_blockEnds.find(at + frontSize);
        if (block == m_blockEnds.end()) {
            ++replacements;
            at += frontSize;
            continue;
        }
        chain.Replacements += replacements;
        const std::size_t end = block->second + crLf.size();
        // With nothing in front of the close tag, the later runs' line ends come before it.
        std::size_t next = end;
        for (std::size_t i = 0; i < chain.Replacements && HasCrLf(m_page, next); ++i)
            next += crLf.size();
        const bool isLast = next + 1 == chain.CloseTag && m_page.substr(next, 1) == doubled;
        if (!HasCrLf(m_page, block->second) || (m_page.substr(end, 1) != doubled && !isLast))
            break;
        for (std::size_t i = 0; i <= replacements; ++i)
            run.Doubled.push_back(at - i * frontSize);
        chain.Units[block->first] = {at, end, std::exchange(replacements, 0)};
        run.End = at = end;
    }
    chain.Runs.push_back(run);
    return run.End;
}

bool InsertedBlocks::IsInserted(const EffectPart& block) const
{
    return std::ranges::any_of(
        m_chains, [&](const Chain& chain) { return chain.Units.contains(block.Span.Begin); });
}

std::vector<Splice> InsertedBlocks::CutsOf(const std::vector<EffectPart>& blocks) const
{
    std::vector<CodeSpan> cuts;
    for (const EffectPart& block : blocks)
        AddCuts(cuts, block);
    std::ranges::sort(cuts, {}, &CodeSpan::Begin);
    std::vector<Splice> splices;
    for (const CodeSpan cut : cuts)
        splices.push_back({cut, {}});
    for (const Chain& chain : m_chains)
        for (const Run& run : chain.Runs)
            MendDoubled(run, cuts, splices);
    return splices;
}

void InsertedBlocks::AddCuts(std::vector<CodeSpan>& cuts, const EffectPart& block) const
{
    const CodeSpan span = block.Span;
    std::optional<CodeSpan> alone;
    // Without a ">", both tags end at one place.
    const std::size_t first = block.Place == PartPlace::Head ? 0 : 1;
    for (const Chain* chain : {&m_chains[first], &m_chains[1 - first]}) {
        const auto found = chain->Units.find(span.Begin);
        if (found == chain->Units.end())
            continue;
        const Unit& unit = found->second;
        alone = {unit.Begin, unit.End};
        if (const auto lineEnds = LineEndsOf(*chain, unit)) {
            cuts.push_back({unit.Begin - unit.Replacements * frontSize, unit.End});
            cuts.push_back(*lineEnds);
            return;
        }
    }
    if (!alone && IsMovedUnit(span))
        alone = {span.Begin - frontSize, span.End + crLf.size()};
    if (!alone)
        alone = {span.Begin, span.End + LineEndAt(m_page, span.End)};
    cuts.push_back(*alone);
}

/// The line ends that replacing runs left in front of the close tag; nothing when there were no
/// such runs, or somebody took a line end away.
std::optional<CodeSpan> InsertedBlocks::LineEndsOf(const Chain& chain, const Unit& unit) const
{
    const std::size_t size = unit.Replacements * crLf.size();
    if (size == 0 || chain.CloseTag < unit.End + size + 1)
        return std::nullopt;
    const CodeSpan ends{chain.CloseTag - 1 - size, chain.CloseTag - 1};
    for (std::size_t at = ends.Begin; at < ends.End; at += crLf.size())
        if (!HasCrLf(m_page, at))
            return std::nullopt;
    return ends;
}

/// Where the page goes on with a block that is cut, its first character is the doubled one, and
/// another takes its place.
void InsertedBlocks::MendDoubled(const Run& run, const std::vector<CodeSpan>& cuts,
                                 std::vector<Splice>& splices) const
{
    std::size_t end = run.End;
    while (const CodeSpan* cut = CutAt(cuts, end))
        end = cut->End;
    if (end == run.End || end == m_page.size())
        return;
    for (const std::size_t at : run.Doubled)
        if (CutAt(cuts, at) == nullptr)
            splices.push_back({{at, at + 1}, std::string(m_page.substr(end, 1))});
}

/// Whether a block stands between what an insertion wrote, though something else was put behind the
/// tag since. Nobody else leaves a lone "<" or mixes line ends so; other characters may be doubled
/// by chance.
bool InsertedBlocks::IsMovedUnit(CodeSpan block) const
{
    return block.Begin >= frontSize && HasCrLf(m_page, block.Begin - crLf.size()) &&
           HasCrLf(m_page, block.End) && block.End + crLf.size() < m_page.size() &&
           m_page[block.Begin - frontSize] == m_page[block.End + crLf.size()] &&
           std::string_view("<\r\n").find(m_page[block.Begin - frontSize]) !=
               std::string_view::npos;
}

} // namespace orvane
