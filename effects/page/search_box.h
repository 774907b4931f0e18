#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/payload.h"
#include "core/surroundings.h"

#include <array>
#include <optional>

namespace orvane {

/// What a search box searches; the numbers are the indexes of the options.
enum class SearchPlace
{
    Web = 0,
    Site = 1,
};

/// The values of SearchBox::Mode: the search box, and the translator, which any other text means as
/// well.
inline constexpr TextView searchMode = u"Search";
inline constexpr TextView translateMode = u"Translate";

/// The sample page of the translator's label and message.
inline constexpr TextView translateSample = u"http://www.mysite.example/mypage.html";

/// What the author enters on the window that makes search boxes and page translators; the defaults
/// are those of a fresh window.
struct SearchBox
{
    static constexpr std::array Kinds = {EffectKind::SearchBox, EffectKind::Translator};
    static constexpr int Pages = 1;

    Text Mode = Text(searchMode);
    SearchPlace optSearch = SearchPlace::Web;
    Text txtURL; ///< the site to search
    Text txtTranslateURL = u"http://";
    bool operator==(const SearchBox&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<SearchBox> Box, class Field>
void ForEachField(Box& box, Field&& field)
{
    field("Mode", box.Mode);
    field("optSearch", box.optSearch);
    field("txtURL", box.txtURL);
    field("txtTranslateURL", box.txtTranslateURL);
}

/// Gives a fresh box the mode of that kind.
void ChooseKind(SearchBox& box, EffectKind kind);

/// The effect of a mode, and the headings of its window.
struct SearchModeWords
{
    EffectKind Kind;
    TextView Heading;
    TextView SubHeading;
};
/// The words of this mode.
SearchModeWords WordsOfMode(TextView mode);

/// The frame of the mode; the site's box is enabled for a search of one site.
Look LookOf(const SearchBox& box);

/// The complaint about the address that the mode needs, or nothing when the wizard may finish.
std::optional<Complaint> Check(const SearchBox& box);

/// The form's page text, with its picture, which lies in the program's folder, in file slot 0.
/// Expects a box that passes Check().
EffectPayload Generate(const SearchBox& box, const Surroundings& surroundings);

} // namespace orvane
