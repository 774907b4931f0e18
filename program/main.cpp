#include "preview/preview_page.h"
#include "program/command_line.h"
#include "program/composition.h"
#include "program/late_arrow_style.h"
#include "program/qt_dialogs.h"
#include "program/qt_resources.h"
#include "program/qt_shell.h"
#include "program/terminal.h"
#include "windows/qt_text.h"
#include "windows/shared_folder.h"

#include <QApplication>
#include <QDateTime>
#include <QIcon>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace {

/// The name of the desktop entry and of the icon that are installed with the program.
constexpr orvane::TextView desktopId = u"example.varlo.orvane";

std::optional<orvane::Text> EnvironmentVariable(orvane::TextView name)
{
    const char* value = std::getenv(orvane::ToUtf8(name).c_str());
    if (value == nullptr)
        return std::nullopt;
    return orvane::FromUtf8(value);
}

/// Gives HOME the account's own folder where nobody set it, for this program and those that it
/// starts.
void ProvideHome()
{
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home != '\0')
        return;
    if (const passwd* account = getpwuid(getuid()))
        setenv("HOME", account->pw_dir, 1);
}

/// Local time in days since the year 1900 began, as the numbers of spreadsheets count them.
double DaysSince1900()
{
    const QDateTime now = QDateTime::currentDateTime();
    const auto days = QDate(1899, 12, 30).daysTo(now.date());
    return static_cast<double>(days) + now.time().msecsSinceStartOfDay() / 86400000.0;
}

/// Of the desktop's pictures, since the drawing that they were made of takes a library to be read.
QIcon WindowIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 64})
        icon.addFile(QStringLiteral("%1/%2x%2/apps/%3.png")
                         .arg(orvane::SharedFolder(QStringLiteral("../icons/hicolor")),
                              QString::number(size), QGuiApplication::desktopFileName()));
    return icon;
}

/// Version, size and age of the program's file.
orvane::Text BuildOf(const orvane::FileStore& files)
{
    const auto facts = files.Facts(orvane::FromQt(QCoreApplication::applicationFilePath()))
                           .value_or(orvane::FileFacts());
    return orvane::Join({ORVANE_VERSION, u" ", orvane::FromUtf8(std::to_string(facts.Size)), u" ",
                         orvane::FromUtf8(std::to_string(facts.Written))});
}

/// Writes the answer where its reader looks for it, and gives the exit code.
int Tell(const orvane::TerminalAnswer& answer)
{
    std::fputs(answer.Words.c_str(), answer.ExitCode == EXIT_SUCCESS ? stdout : stderr);
    return answer.ExitCode;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace orvane;
    const QStringList words(argv + 1, argv + argc);
    if (const auto answer = AnswerOf(words, ORVANE_VERSION))
        return Tell(*answer);
    ProvideHome();
    const auto folders = FindUserFolders(EnvironmentVariable);
    if (!folders) {
        std::fputs("Orvane finds no folder for what it keeps: set HOME to your home folder.\n",
                   stderr);
        return EXIT_FAILURE;
    }
    QuietEngines();
    QApplication application(argc, argv);
    QApplication::setStyle(new LateArrowStyle(QApplication::style()));
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    QApplication::setDesktopFileName(ToQt(desktopId));
    QApplication::setQuitOnLastWindowClosed(false);
    EndOrderlyOnSignals(application);
    const auto file = FileOf(QApplication::arguments().mid(1));
    if (const auto* answer = std::get_if<TerminalAnswer>(&file))
        return Tell(*answer);

    PosixCalls calls;
    ShutOthersOut(calls, *folders);
    Disk disk(calls, *folders);
    QtDialogs dialogs(disk.Settings);
    QtShell shell;
    QtClipboard clipboard;
    Composition program(*folders, disk,
                        {.Dialogs = dialogs,
                         .Shell = shell,
                         .Clipboard = clipboard,
                         .Version = ORVANE_VERSION,
                         .Today = [] { return FromQt(QDate::currentDate().toString(Qt::ISODate)); },
                         .Clock = &DaysSince1900});
    program.Desk.Start();
    // After the first paint of the window.
    QTimer::singleShot(0, &program.Desk, [&] {
        QApplication::setWindowIcon(WindowIcon());
        RemovePreviewPages(disk.Files, program.Core);
        InstallResources(disk.Files, dialogs, folders->Program, BuildOf(disk.Files));
        if (const Text& path = std::get<Text>(file); !path.empty())
            program.Desk.OpenFile(path);
    });
    return QApplication::exec();
}
