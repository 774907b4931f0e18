#pragma once

#include "core/complaint.h"
#include "core/orvane_core.h"
#include "core/settings.h"

#include <optional>
#include <span>

namespace orvane {

/// The text of the browser field while previews open in the desktop's default browser.
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

/// The Web page editors that the window offers.
std::span<const TextView> WebPageEditors();

/// The preferences with which the window opens. chkOverride and the stored browser do not come
/// back: SavePreferences() writes the setting Apps/Override, this reads Misc/Override.
Preferences LoadPreferences(const Settings& settings);

/// The complaint about an empty browser field, or nothing when the preferences can be stored.
std::optional<Complaint> Check(const Preferences& preferences);

/// Stores the preferences; the default folder only when it is another one, and not empty. Expects
/// preferences that pass Check().
void SavePreferences(const Preferences& preferences, OrvaneCore& core, Settings& settings);

} // namespace orvane
