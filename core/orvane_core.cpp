#include "core/orvane_core.h"

namespace orvane {

Text EscapeApostrophes(TextView text)
{
    return ReplaceAll(text, u"'", u"\\'");
}

RegistryVariant AfterRegistryRead(const RegistryVariant& current, const RegistryAnswer& answer)
{
    switch (answer.Kind) {
    case RegistryAnswer::Type::Characters:
        if (answer.ReadFailed)
            return std::monostate();
        // Stays as it is: the terminator is kept as part of the text.
        return answer.Buffer;
    case RegistryAnswer::Type::Number:
        if (!answer.ReadFailed)
            return answer.Number;
        break;
    case RegistryAnswer::Type::Missing:
    case RegistryAnswer::Type::Other:
        break;
    }
    return current;
}

void ReadClassesRootValue(OrvaneCore& core, Shell& shell)
{
    core.IEVersion = std::monostate();
    if (auto command = shell.DefaultBrowser())
        core.IEVersion = *std::move(command);
}

void SetModes(OrvaneCore& core, std::string_view menuCommand)
{
    if (menuCommand == "mnuRandomImage")
        core.RandomMode = u"image";
    else if (menuCommand == "mnuRandomQuote")
        core.RandomMode = u"quote";
    else if (menuCommand == "mnuImageTransitions")
        core.TransitionsImageMode = true;
    else if (menuCommand == "mnuTextTransitions")
        core.TransitionsImageMode = false;
}

void BrowseDialog(OrvaneCore& core, Dialogs& dialogs, const FileRequest& request)
{
    if (const auto path = dialogs.OpenFile(request))
        core.BrowserPathChoice = *path;
}

void SaveDefaultPath(OrvaneCore& core, Settings& settings, TextView folder)
{
    settings.Put(settingKeys::defaultPath, folder);
    core.DefaultPath = folder;
}

bool AreInputBoxesUnlocked(const Settings& settings)
{
    return settings.Get(settingKeys::unlockInputBoxes) == u"1";
}

void WarnInputBoxLocked(const Settings& settings, Dialogs& dialogs)
{
    if (!AreInputBoxesUnlocked(settings))
        dialogs.Say(
            u"Please click the 'Browse' button next to the input box to specify the filename.");
}

Text RelativePrefix(TextView, TextView)
{
    return {};
}

} // namespace orvane
