#pragma once

#include "core/complaint.h"
#include "core/orvane_core.h"
#include "core/settings.h"

#include <optional>
#include <span>

namespace orvane {

/// What the browser field says while previews open in the desktop's default browser.
inline constexpr TextView defaultBrowser = u"default browser";

/// What the author sets in the preferences window.
struct Preferences
{
    Text txtBrowser = Text(defaultBrowser);
    bool chkOverride = false; ///< previews open in txtBrowser
    Text txtDefaultPath;      ///< folder where lists of pictures begin
    bool chkUnlock = false;   ///< file fields may be typed into
    Text cboWebPageEditor;    ///< empty until the author names one
};

/// The editors that the window offers.
std::span<const TextView> WebPageEditors();

/// The stored preferences as the window opens with them.
Preferences LoadPreferences(const Settings& settings);

/// The failing check, or nothing when the preferences can be stored.
std::optional<Complaint> Check(const Preferences& preferences);

/// Stores preferences that pass Check(); an empty default folder leaves the stored one.
void SavePreferences(const Preferences& preferences, OrvaneCore& core, Settings& settings);

} // namespace orvane
