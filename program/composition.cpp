#include "program/composition.h"

#include "windows/remember_place.h"

#include <QTimer>

namespace orvane {

namespace {

constexpr int warmDelayMs = 400;

} // namespace

Composition::Composition(const UserFolders& folders, Disk& disk, const Outside& outside)
    : Core{.ProgramFolder = folders.Program},
      Pane(outside.Dialogs, outside.Shell, disk.Files),
      Help(disk.Files, outside.Shell, folders.Program, FormDesk::ListEffectsOfTags()),
      Bench{.Core = Core,
            .Dialogs = outside.Dialogs,
            .Files = disk.Files,
            .Settings = disk.Settings,
            .Shell = outside.Shell,
            .Clipboard = outside.Clipboard,
            .Pane = Pane,
            .Help = Help,
            .Version = outside.Version,
            .StateFolder = folders.State,
            .Today = outside.Today,
            .Clock = outside.Clock},
      Desk(Bench, &Pane)
{
    RememberPlace(Help, disk.Settings);
    // An open wizard is the first sign of a preview to come; the author is still reading then.
    QObject::connect(&Desk, &FormDesk::WizardOpened, &Pane,
                     [this] { QTimer::singleShot(warmDelayMs, &Pane, &QtPreviewPane::Warm); });
}

} // namespace orvane
