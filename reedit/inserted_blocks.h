#pragma once

#include "reedit/effects_in_page.h"
#include "reedit/page_splices.h"

#include <array>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

/// The blocks that insertions wrote directly behind the HEAD and the BODY tag. Each stands between
/// line ends, with the character behind the tag in front of the first one and again behind the
/// other; later runs that replaced it left more of both.
class InsertedBlocks
{
public:
    /// Expects all blocks in the page, which must outlive the object.
    InsertedBlocks(std::string_view page, const std::vector<EffectPart>& blocks);

    /// Whether the block stands directly behind one of the tags, nothing but the work of insertions
    /// between.
    bool IsInserted(const EffectPart& block) const;

    /// What goes with these blocks: what insertions wrote around them where they still stand
    /// between that, else the line end behind each.
    std::vector<Splice> CutsOf(const std::vector<EffectPart>& blocks) const;

private:
    struct Unit
    {
        std::size_t Begin;        ///< of the doubled character
        std::size_t End;          ///< of the line end behind the block
        std::size_t Replacements; ///< what as many runs left stands in front of it
    };
    /// Blocks one behind the other, with one character doubled between them.
    struct Run
    {
        std::vector<std::size_t> Doubled; ///< the places of that character
        std::size_t End = 0;              ///< where the page goes on, with that character again
    };
    /// What stands behind one tag.
    struct Chain
    {
        std::map<std::size_t, Unit> Units; ///< by the place of the block
        std::vector<Run> Runs;
        std::size_t Replacements = 0; ///< of all units
        std::size_t CloseTag = 0;     ///< its place, counted from 1
    };

    Chain ReadChain(std::string_view tag, std::string_view closeTag) const;
    std::size_t BehindOthers(std::size_t at) const;
    std::size_t ReadRun(Chain& chain, std::size_t at) const;
    void AddCuts(std::vector<CodeSpan>& cuts, const EffectPart& block) const;
    std::optional<CodeSpan> LineEndsOf(const Chain& chain, const Unit& unit) const;
    void MendDoubled(const Run& run, const std::vector<CodeSpan>& cuts,
                     std::vector<Splice>& splices) const;
    bool IsMovedUnit(CodeSpan block) const;

    std::string_view m_page;
    std::map<std::size_t, std::size_t> m_blockEnds; ///< by the place of the block
    std::optional<CodeSpan> m_lines;                ///< of the page script
    std::array<Chain, 2> m_chains;                  ///< behind the HEAD and behind the BODY tag
};

} // namespace orvane
