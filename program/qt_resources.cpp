#include "program/qt_resources.h"

#include "core/file_names.h"
#include "disk/program_folder.h"
#include "windows/qt_text.h"

#include <QDirIterator>
#include <QFile>

namespace orvane {

namespace {

/// Writes every file of one resource folder into a folder of the disk.
Done InstallFolder(FileStore& files, const QString& resources, const QString& masks,
                   TextView folder)
{
    // Previews and passwords lie there as well.
    const Done made = MakeFolders(files, folder, Access::OwnerAlone);
    if (FaultIn(made))
        return made;
    for (QDirIterator entry(resources, {masks}, QDir::Files); entry.hasNext();) {
        QFile file(entry.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray bytes = file.readAll();
        const Done installed =
            InstallFile(files, PathIn(folder, FromQt(entry.fileName())),
                        {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        if (FaultIn(installed))
            return installed;
    }
    return {};
}

} // namespace

void InstallResources(FileStore& files, Dialogs& dialogs, TextView programFolder)
{
    /// Files of the resources, and the folder below the program's own that they go to.
    struct Place
    {
        const char* Resources;
        const char* Masks;
        Text Folder;
    };
    const Place places[] = {{":/help", "*.hlp", Text(programFolder)},
                            {":/help", "*.svg", PathIn(programFolder, u"help")},
                            {":/applets", "*", Text(programFolder)},
                            {":/runtime", "*", Text(programFolder)}};
    for (const Place& place : places) {
        const Done installed = InstallFolder(files, QLatin1String(place.Resources),
                                             QLatin1String(place.Masks), place.Folder);
        if (const Fault* fault = FaultIn(installed)) {
            dialogs.Say(Join(
                {u"Orvane cannot write to its folder ", programFolder, u".\r\n", Words(*fault)}));
            return;
        }
    }
}

} // namespace orvane
