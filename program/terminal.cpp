#include "program/terminal.h"

#include <QCoreApplication>
#include <QMessageLogContext>
#include <QSocketNotifier>
#include <QString>

#include <csignal>
#include <cstdio>
#include <tuple>

#include <fcntl.h>
#include <unistd.h>

namespace orvane {

namespace {

int wakingEnd = -1;

void Wake(int signal)
{
    const auto number = static_cast<unsigned char>(signal);
    std::ignore = write(wakingEnd, &number, 1);
}

} // namespace

void EndOrderlyOnSignals(QObject& owner)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    wakingEnd = ends[1];
    auto* waiting = new QSocketNotifier(ends[0], QSocketNotifier::Read, &owner);
    QObject::connect(waiting, &QSocketNotifier::activated, &owner, [end = ends[0]] {
        constexpr int killedBySignal = 128;
        unsigned char number = 0;
        if (read(end, &number, 1) == 1)
            QCoreApplication::exit(killedBySignal + number);
    });
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        struct sigaction action = {};
        action.sa_handler = Wake;
        action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
        struct sigaction former = {};
        // One that is ignored, as below nohup, stays so.
        if (sigaction(signal, nullptr, &former) == 0 && former.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
}

void QuietEngines()
{
    if (qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        return;
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& words) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(words));
    });
}

} // namespace orvane
