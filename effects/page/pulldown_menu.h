#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>
#include <vector>

namespace orvane {

/// How a menu looks on the page; the numbers are the indexes of the options.
enum class MenuDisplay
{
    AllItems = 0,
    Dropdown = 1,
};

/// One item of a menu.
struct MenuItem
{
    Text txtMenuItem;
    Text txtMenuItemURL;
    bool operator==(const MenuItem&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the order of the
/// window of one item.
template <ConstOr<MenuItem> Item, class Field>
void ForEachField(Item& item, Field&& field)
{
    field("txtMenuItem", item.txtMenuItem);
    field("txtMenuItemURL", item.txtMenuItemURL);
}

/// The complaint about an item without text or address, or nothing when it may go into the menu.
std::optional<Complaint> Check(const MenuItem& item);

/// Puts "http://" in front of an address that begins with "www.".
void Tidy(MenuItem& item);

/// What the author enters on the Pulldown Menu window; the defaults are those of a fresh window.
struct PulldownMenu
{
    static constexpr std::array Kinds = {EffectKind::PulldownMenu};
    static constexpr int Pages = 1;

    std::vector<MenuItem> Items;
    MenuDisplay optDisplay = MenuDisplay::Dropdown;
    Text cboTarget = u"self";
    bool operator==(const PulldownMenu&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<PulldownMenu> Menu, class Field>
void ForEachField(Menu& menu, Field&& field)
{
    field(Lists("List1", "List2"), menu.Items);
    field("optDisplay", menu.optDisplay);
    field("cboTarget", menu.cboTarget);
}

/// The target frames that the window offers.
inline constexpr std::array<TextView, 4> menuTargets = {u"blank - Open in new window", u"parent",
                                                        u"self", u"top"};

/// The text of a separator in the menu. An item with this text is a separator and has no address.
inline constexpr TextView menuSeparator = u"--------------------";

/// The complaint that a separator cannot be edited, or nothing for any other item.
std::optional<Complaint> CheckEdit(const MenuItem& item);

/// The complaint about a menu without items, or nothing when the wizard may finish.
std::optional<Complaint> Check(const PulldownMenu& menu);

/// The hint at an apostrophe in the target frame, which ends the text in the script.
std::vector<Hint> HintsOf(const PulldownMenu& menu);

/// The menu's page text. Expects a menu that passes Check().
EffectPayload Generate(const PulldownMenu& menu);

} // namespace orvane
