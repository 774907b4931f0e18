#include "core/qt_resources.h"

#include "core/program_folder.h"
#include "core/qt_text.h"
#include "services/file_names.h"

#include <QDirIterator>
#include <QFile>

namespace orvane {

namespace {

/// Writes every file of one resource folder into a folder of the disk.
Done InstallFolder(FileStore& files, const QString& resources, TextView folder)
{
    const Done made = MakeFolders(files, folder);
    if (FaultIn(made))
        return made;
    for (QDirIterator entry(resources, QDir::Files); entry.hasNext();) {
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
    for (const char* resources : {":/help", ":/applets"}) {
        const Done installed = InstallFolder(files, QLatin1String(resources), programFolder);
        if (const Fault* fault = FaultIn(installed)) {
            dialogs.Say(Join(
                {u"Orvane cannot write to its folder ", programFolder, u".\r\n", Words(*fault)}));
            return;
        }
    }
}

} // namespace orvane
