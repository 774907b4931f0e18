#include "windows/shared_folder.h"

#include <QCoreApplication>

namespace orvane {

QString SharedFolder(const QString& name)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/orvane/") + name;
}

} // namespace orvane
