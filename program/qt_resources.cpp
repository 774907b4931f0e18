#include "program/qt_resources.h"

#include "core/file_names.h"
#include "disk/program_folder.h"
#include "windows/qt_text.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <span>
#include <string>
#include <string_view>
#include <tuple>

namespace orvane {

namespace {

/// Files of the resources whose names end so, and the folder below the program's own that they go
/// to.
struct Place
{
    const char* Resources;
    const char* NameEnd;
    Text Folder;

    QFileInfoList Files() const
    {
        // A mask would load the library of regular expressions.
        QFileInfoList files;
        for (QDirIterator entry(QLatin1String(Resources), QDir::Files); entry.hasNext();)
            if (entry.next().endsWith(QLatin1String(NameEnd)))
                files.push_back(entry.fileInfo());
        return files;
    }
};

/// Writes every file of one resource folder into a folder of the disk.
Done InstallFolder(FileStore& files, const Place& place)
{
    // Previews and passwords lie there as well.
    const Done made = MakeFolders(files, place.Folder, Access::OwnerAlone);
    if (FaultIn(made))
        return made;
    for (const QFileInfo& entry : place.Files()) {
        QFile file(entry.filePath());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray bytes = file.readAll();
        const Done installed =
            InstallFile(files, PathIn(place.Folder, FromQt(entry.fileName())),
                        {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        if (FaultIn(installed))
            return installed;
    }
    return {};
}

/// A line of the stamp: the file and what tells, without opening it, whether it is still the one
/// that was written.
std::string StampLine(const FileStore& files, TextView path)
{
    const FileFacts facts = files.Facts(path).value_or(FileFacts());
    return ToUtf8(path) + ' ' + std::to_string(facts.Size) + ' ' + std::to_string(facts.Written) +
           '\n';
}

std::string Stamp(const FileStore& files, std::span<const Place> places, TextView build)
{
    std::string stamp = ToUtf8(build) + '\n';
    for (const Place& place : places)
        for (const QFileInfo& entry : place.Files())
            stamp += StampLine(files, PathIn(place.Folder, FromQt(entry.fileName())));
    return stamp;
}

/// Whether this build wrote the stamp and every file in it is still as it was then. The program's
/// own copies of the files are not looked at: that alone would read a good part of the program.
bool IsInstalled(const FileStore& files, std::string_view stamp, TextView build)
{
    const std::string firstLine = ToUtf8(build) + '\n';
    if (!stamp.starts_with(firstLine))
        return false;
    stamp.remove_prefix(firstLine.size());
    while (!stamp.empty()) {
        const std::string_view line = stamp.substr(0, stamp.find('\n') + 1);
        const std::size_t size = line.find_last_of(' ', line.find_last_of(' ') - 1);
        if (line.empty() || size == std::string_view::npos ||
            line != StampLine(files, FromUtf8(line.substr(0, size))))
            return false;
        stamp.remove_prefix(line.size());
    }
    return true;
}

} // namespace

void InstallResources(FileStore& files, Dialogs& dialogs, TextView programFolder, TextView build)
{
    const Place places[] = {{":/help", ".hlp", Text(programFolder)},
                            {":/help", ".svg", PathIn(programFolder, u"help")},
                            {":/applets", "", Text(programFolder)},
                            {":/runtime", "", Text(programFolder)}};
    const Text stampPath = PathIn(programFolder, u"installed.txt");
    const auto stamp = files.Read(stampPath);
    if (!FaultIn(stamp) && IsInstalled(files, ValueIn(stamp), build))
        return;
    for (const Place& place : places) {
        const Done installed = InstallFolder(files, place);
        if (const Fault* fault = FaultIn(installed)) {
            dialogs.Say(Join(
                {u"Orvane cannot write to its folder ", programFolder, u".\r\n", Words(*fault)}));
            return;
        }
    }
    // Without it the next start compares all of them again.
    std::ignore = files.Replace(stampPath, Stamp(files, places, build));
}

} // namespace orvane
