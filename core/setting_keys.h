#pragma once

#include "core/text.h"

namespace orvane {

/// One stored text: where it stands, and what it is until something is stored.
struct SettingKey
{
    TextView Section;
    TextView Key;
    TextView Otherwise = {};
    TextView Application = u"Orvane";
};

/// The sections whose keys are not known beforehand: a window, a kind of file, a number.
namespace settingSections {

inline constexpr TextView folders = u"Folders";    ///< by FolderPurpose: where a file was found
inline constexpr TextView places = u"Places";      ///< by window: where it stood
inline constexpr TextView recentFiles = u"Recent"; ///< by kind of file: the paths
inline constexpr TextView servers = u"FTP";        ///< "Server" and "Username" with a number

} // namespace settingSections

/// Everything else that the program stores.
namespace settingKeys {

/// The folder in which lists of images begin.
inline constexpr SettingKey defaultPath{u"Misc", u"DefaultPath", u"c:\\"};
/// "1": file fields may be typed into.
inline constexpr SettingKey unlockInputBoxes{u"Misc", u"UnlockInputBoxes", u"0"};
/// The Web page editor that the author named.
inline constexpr SettingKey webPageEditor{u"Misc", u"HTMLEditor"};
/// "1": pages get the page script for today's browsers.
inline constexpr SettingKey runsToday{u"Misc", u"RunsToday", u"0"};
/// The program that shows previews; "c:\" or empty until one is known.
inline constexpr SettingKey browser{u"Apps", u"Browser", u"c:\\"};
/// "0": previews open in the desktop's default browser.
inline constexpr SettingKey overrideBrowser{u"Apps", u"Override", u"0"};
/// Stays as it is: the preferences window reads this one, and nothing stores it.
inline constexpr SettingKey overrideTick{u"Misc", u"Override", u"0"};
/// Names of menu commands with a blank between two.
inline constexpr SettingKey favorites{u"Catalogue", u"Favorites"};
inline constexpr SettingKey recentEffects{u"Catalogue", u"Recent"};
/// "0": the pictures of the catalogue keep still.
inline constexpr SettingKey movingPictures{u"Catalogue", u"MovingPictures", u"1"};
/// The live preview beside wizards: "1" when it is folded away, its width in pixels, and the full
/// path of the page that it shows effects in, or empty for an empty page.
inline constexpr SettingKey previewFolded{u"Preview", u"Folded", u"0"};
inline constexpr SettingKey previewWidth{u"Preview", u"Width", u"420"};
inline constexpr SettingKey previewPage{u"Preview", u"Page"};
/// The author's address, as another program of the same makers stores it.
inline constexpr SettingKey emailAddress{u"Miscellaneous", u"EmailAddress", {}, u"Page Loom"};

} // namespace settingKeys

/// A key of one of the sections above, empty until something is stored. `key` must outlive it.
constexpr SettingKey InSection(TextView section, TextView key)
{
    return {section, key};
}

} // namespace orvane
