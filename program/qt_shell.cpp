#include "program/qt_shell.h"

#include "windows/qt_text.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace orvane {

namespace {

/// The first line of a short-lived program's output; empty when it fails or takes too long.
QString FirstLineOf(const QString& program, const QStringList& arguments)
{
    constexpr int patienceMs = 2000;
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(patienceMs) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput()).section(u'\n', 0, 0).trimmed();
}

/// The program that a desktop file starts, without its arguments.
QString ProgramOf(const QString& desktopFile)
{
    const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, desktopFile);
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (line.startsWith(QLatin1String("Exec=")))
            return QProcess::splitCommand(line.mid(5)).value(0);
    return {};
}

} // namespace

void QtShell::OpenWithShell(TextView target)
{
    const QString text = ToQt(target);
    const bool isPath = text.startsWith(u'/');
    QDesktopServices::openUrl(isPath ? QUrl::fromLocalFile(text) : QUrl(text, QUrl::TolerantMode));
}

bool QtShell::Start(TextView program, TextView argument)
{
    // The browser raises its own window for a page that it is handed.
    return !program.empty() && QProcess::startDetached(ToQt(program), {ToQt(argument)});
}

std::optional<Text> QtShell::DefaultBrowser()
{
    const QString desktopFile =
        FirstLineOf(QStringLiteral("xdg-settings"), {"get", "default-web-browser"});
    const QString program = desktopFile.isEmpty() ? QString() : ProgramOf(desktopFile);
    const QString path = program.isEmpty() ? QString() : QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return std::nullopt;
    return FromQt(path);
}

void QtClipboard::Put(TextView text)
{
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setText(ToQt(text));
}

} // namespace orvane
