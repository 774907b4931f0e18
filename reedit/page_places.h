#pragma once

#include "core/text.h"
#include "reedit/effects_in_page.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

/// Why an effect cannot be put into a page where the author points.
enum class NoPlace
{
    InsideMarkup, ///< inside a tag, a comment or a script
    InsideEffect, ///< inside another effect, or inside half of one
    OutsideBody,  ///< in front of the BODY tag
    NoBodyTag,    ///< the effect needs a BODY tag for its call
    TwoByteText,  ///< each character of the page has two bytes
};

/// The reason in words for the author.
TextView Words(NoPlace reason);

/// The tags between which code is put.
struct Landmarks
{
    std::optional<CodeSpan> HeadEnd; ///< its close tag
    std::optional<CodeSpan> HeadTag;
    std::optional<CodeSpan> BodyTag;
    std::optional<std::size_t> BodyEnd; ///< in front of its last close tag
    std::optional<std::size_t> PageEnd; ///< in front of the page's last close tag
};

/// The tags of a page, as a browser sees them.
Landmarks LandmarksOf(std::string_view page);

/// The place "at the top" of what the page shows: behind its BODY tag and the line end that
/// follows it or, where it has none, its HEAD, its HTML tag or its DOCTYPE.
std::size_t TopOf(std::string_view page);

/// The place "at the end" of what the page shows: in front of the close tag of its BODY, or of the
/// page, or where the page ends.
std::size_t EndOf(std::string_view page);

/// Whether the page is in an encoding in which no ASCII may be put.
bool IsTwoByteText(std::string_view page);

/// Why no effect can be put at this place of the page with these effects, or nothing.
std::optional<NoPlace> WhyNotAt(std::string_view page, std::size_t at, const Landmarks& marks,
                                const std::vector<EffectInPage>& effects);

} // namespace orvane
