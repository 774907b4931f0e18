#include "program/terminal.h"

#include <QMessageLogContext>
#include <QString>

#include <cstdio>

namespace orvane {

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
