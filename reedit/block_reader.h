#pragma once

#include "services/block_fields.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane {

/// The first block of that kind in a stretch of page text, whatever the number of its format;
/// nothing when there is none. It is read as a browser reads it, so that it may have been edited by
/// hand: the order, case and quotes of its attributes, references, close tags that may be left out
/// and line ends do not matter. All attributes of the root are kept but the one that says what it
/// is; of the content, what belongs to the alternative that `shape` holds.
std::optional<Block> FindBlock(TextView text, TextView kind, const BlockContent& shape);

/// Makes the effect what its first block in a stretch of page text shows. Gives false, with the
/// effect as it was, when there is none.
template <class Effect>
bool ReadBlock(Effect& effect, TextView text)
{
    const auto read = [&](const Effect& face) {
        std::optional<Block> block = FindBlock(text, BlockKindOf(face), ContentOf(face));
        if (block)
            effect = EffectOf<Effect>(std::move(*block), face);
        return block.has_value();
    };
    return std::ranges::any_of(FacesOf<Effect>(), read);
}

} // namespace orvane
