#include "program/startup.h"

#include "core/numbers.h"

namespace orvane {

bool PassesVersionGate(const RegistryVariant& version)
{
    if (const auto* number = std::get_if<std::int32_t>(&version))
        return Val(Left(NumberToText(*number), 1)) >= 4;
    const auto* text = std::get_if<Text>(&version);
    return text != nullptr && Val(Left(*text, 1)) >= 4;
}

FirstWindow StartUp(Workbench& bench)
{
    bench.Core.DefaultPath = bench.Settings.Get(settingKeys::defaultPath);
    if (!bench.PlatformBrowserVersion)
        return FirstWindow::OVMain;
    bench.Core.IEVersion = *bench.PlatformBrowserVersion;
    if (PassesVersionGate(bench.Core.IEVersion))
        return FirstWindow::OVMain;
    if (bench.Dialogs.Ask(
            u"Orvane requires Internet Explorer 4.0 or above to be installed on your computer."
            u"\r\n\r\n"
            u"Would you like to download the Netscape version of Orvane or Internet Explorer?"))
        return FirstWindow::DownloadOV;
    bench.Dialogs.Say(
        u"You can attempt to use Orvane without having Internet Explorer 4 or above installed on "
        u"your computer, but it may not work correctly.");
    return FirstWindow::OVMain;
}

void SetWizardParam(OrvaneCore& core)
{
    core.WizardParam = wizardParamLine;
}

void PrepareMainWindow(OrvaneCore& core)
{
    core.ImageFolderMemo = core.ProgramFolder;
    core.LinkFolderMemo = core.ProgramFolder;
    core.LastSoundFolder = core.ProgramFolder;
}

} // namespace orvane
