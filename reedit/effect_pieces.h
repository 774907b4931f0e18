#pragma once

#include "reedit/effects_in_page.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

/// An effect's code, or one comment of it that lacks the other.
struct Piece
{
    Text Name;
    CodeSpan Span;
    bool IsInHead = false;
    EffectState State = EffectState::Half; ///< never Changed
};

/// What stands in a page, as a browser sees it.
struct PagePieces
{
    std::vector<Piece> Pieces; ///< in the order in which they begin
    std::optional<CodeSpan> BodyTag;
};

/// Reads a page once from its start to its end.
PagePieces PiecesIn(std::string_view page);

} // namespace orvane
