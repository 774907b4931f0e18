#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What makes the popup window appear; the numbers are the indexes of the options.
enum class WhenToAppear
{
    OnLoad = 0,
    OnExit = 1,
    OnHyperlink = 2,
    OnImage = 3,
};

/// What the author enters on the Popup Window window; the defaults are those of a fresh window.
struct PopupWindow
{
    static constexpr std::array Kinds = {EffectKind::PopupWindow};
    static constexpr int Pages = 2;

    WhenToAppear optWhenToAppear = WhenToAppear::OnLoad;
    Text txtLinkItem; ///< text of the link, or file name of the image
    Text txtWindowName;
    Text txtURL;
    Text txtWidth;         ///< pixels, as typed
    Text txtHeight;        ///< pixels, as typed
    Text txtHorizLocation; ///< pixels, as typed; may be empty
    Text txtVertLocation;  ///< the same
    bool chkShowToolbar = false;
    bool chkShowStatusBar = false;
    bool chkShowLocation = false;
    bool chkShowMenu = false;
    bool chkShowDirectory = false;
    bool chkShowScrollbars = false;
    bool chkResizable = false;
    RequiredFiles Required; ///< slot 0: what Browse gave for `txtURL`
    bool operator==(const PopupWindow&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<PopupWindow> Window, class Field>
void ForEachField(Window& window, Field&& field)
{
    field("optWhenToAppear", window.optWhenToAppear);
    field("txtLinkItem", window.txtLinkItem);
    field("txtWindowName", window.txtWindowName);
    field("txtURL", window.txtURL);
    field("txtWidth", window.txtWidth);
    field("txtHeight", window.txtHeight);
    field("txtHorizLocation", window.txtHorizLocation);
    field("txtVertLocation", window.txtVertLocation);
    field("chkShowToolbar", window.chkShowToolbar);
    field("chkShowStatusBar", window.chkShowStatusBar);
    field("chkShowLocation", window.chkShowLocation);
    field("chkShowMenu", window.chkShowMenu);
    field("chkShowDirectory", window.chkShowDirectory);
    field("chkShowScrollbars", window.chkShowScrollbars);
    field("chkResizable", window.chkResizable);
}

/// The frame of the link as the choice wants it; it keeps its words while it is not needed.
Look LookOf(const PopupWindow& window);

/// Whether the name ends like that of a picture (jpg, gif), whose size the popup window then takes.
bool IsPopupPicture(TextView fileName);

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const PopupWindow& window, int page);

/// The hints at quotes in what the call of the script takes, and at sizes and places that are no
/// numbers.
std::vector<Hint> HintsOf(const PopupWindow& window);

/// The page text that opens the popup window, with the file that it shows. Expects a window that
/// passes CheckPage() on every page.
EffectPayload Generate(const PopupWindow& window);

} // namespace orvane
