#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the button looks like; the numbers are the indexes of the options.
enum class ButtonType
{
    Button = 0,
    Hyperlink = 1,
    Image = 2,
};

/// What the author enters on the All-in-One Button window; the defaults are those of a fresh
/// window.
struct AllInOneButton
{
    static constexpr std::array Kinds = {EffectKind::AllInOneButton};
    static constexpr int Pages = 2;

    Text cboButtonAction; ///< an item of buttonActions; empty when none is chosen
    ButtonType optButtonType = ButtonType::Button;
    Text txtButtonText; ///< the text, or the file name of the image
    Text txtURL;        ///< the address, or the file name of the sound
    Text txtBookmarkURL;
    Text txtBookmarkTitle;
    bool operator==(const AllInOneButton&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<AllInOneButton> Button, class Field>
void ForEachField(Button& button, Field&& field)
{
    field("cboButtonAction", button.cboButtonAction);
    field("optButtonType", button.optButtonType);
    field("txtButtonText", button.txtButtonText);
    field("txtURL", button.txtURL);
    field("txtBookmarkURL", button.txtBookmarkURL);
    field("txtBookmarkTitle", button.txtBookmarkTitle);
}

/// What a click on the button does; the numbers are the indexes in buttonActions.
enum class ButtonAction
{
    None = -1,
    Link = 0,
    Print = 1,
    Close = 2,
    Sound = 3,
    Favorites = 4,
};

/// The actions in the order of their list.
inline constexpr std::array<TextView, 5> buttonActions = {
    u"Link to another Web page", u"Print the current Web page", u"Close the current browser window",
    u"Play a sound", u"Add current Web page to Favorites/Bookmarks"};

/// The action of that item; None for any other text.
ButtonAction ActionOf(TextView item);

/// The boxes that type and action need.
Look LookOf(const AllInOneButton& button);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const AllInOneButton& button, int page);

/// The hints at quotes in what the call of the action's script takes.
std::vector<Hint> HintsOf(const AllInOneButton& button);

/// The button's page text. Expects a button that passes CheckPage() on every page.
EffectPayload Generate(const AllInOneButton& button);

} // namespace orvane
