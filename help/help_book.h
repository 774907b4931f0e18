#pragma once

#include "core/text.h"

#include <string_view>
#include <vector>

namespace orvane {

/// One topic of the help.
struct HelpTopic
{
    int Number = 0;
    Text Title; ///< plain text
    Text Body;  ///< a fragment of HTML
};

/// The topics in the order of the contents.
using HelpBook = std::vector<HelpTopic>;

/// The topics of a book file in UTF-8. A line such as "=== 22 Preview your special effect" begins a
/// topic, and the lines up to the next one are its body; lines before the first topic are ignored.
/// `effectsOfTags`, a fragment of HTML, replaces "«EffectsOfTags»" in the bodies.
HelpBook ReadHelpBook(std::string_view bytes, TextView effectsOfTags = {});

/// The first topic with that number, or null.
const HelpTopic* FindTopic(const HelpBook& book, int number);

/// The words of an HTML fragment as a reader sees them: each tag becomes a blank, and "&lt;",
/// "&gt;", "&quot;", "&nbsp;" and "&amp;" become their characters.
Text ShownText(TextView html);

/// The topics in which every word of `words` is found, upper and lower case taken as equal: first
/// those whose title holds them all, then the others, both in book order; every topic when there is
/// no word.
std::vector<const HelpTopic*> SearchBook(const HelpBook& book, TextView words);

} // namespace orvane
