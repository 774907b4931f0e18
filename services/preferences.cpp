#include "services/preferences.h"

#include "services/page_editors.h"

namespace orvane {

namespace {

// Stays as it is: "Dream Weaver" in two words here, in one in the delivery wizard.
constexpr auto webPageEditors = [] {
    std::array<TextView, pageEditors.size()> names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = pageEditors[i].Name == u"DreamWeaver" ? u"Dream Weaver" : pageEditors[i].Name;
    return names;
}();

TextView Flag(bool isOn)
{
    return isOn ? u"1" : u"0";
}

} // namespace

std::span<const TextView> WebPageEditors()
{
    return webPageEditors;
}

Preferences LoadPreferences(const Settings& settings)
{
    Preferences preferences{
        // Stays as it is: Apps/Override is what gets stored, so the box opens unticked every time.
        .chkOverride = settings.Get(settingKeys::overrideTick) == u"1",
        .txtDefaultPath = settings.Get(settingKeys::defaultPath),
        .chkUnlock = AreInputBoxesUnlocked(settings),
        .cboWebPageEditor = settings.Get(settingKeys::webPageEditor),
    };
    if (preferences.chkOverride)
        preferences.txtBrowser = settings.Get(settingKeys::browser);
    return preferences;
}

std::optional<Complaint> Check(const Preferences& preferences)
{
    if (preferences.txtBrowser.empty())
        return Complaint{u"If you are overriding the default broswer, you must enter the path and "
                         u"filename of a different browser in the Browser input box.",
                         "txtBrowser"};
    return std::nullopt;
}

void SavePreferences(const Preferences& preferences, OrvaneCore& core, Settings& settings)
{
    settings.Put(settingKeys::browser, preferences.txtBrowser);
    settings.Put(settingKeys::overrideBrowser, Flag(preferences.chkOverride));
    settings.Put(settingKeys::unlockInputBoxes, Flag(preferences.chkUnlock));
    settings.Put(settingKeys::webPageEditor, preferences.cboWebPageEditor);
    const bool isChanged = preferences.txtDefaultPath != LoadPreferences(settings).txtDefaultPath;
    if (isChanged && !preferences.txtDefaultPath.empty())
        SaveDefaultPath(core, settings, preferences.txtDefaultPath);
}

} // namespace orvane
