#pragma once

#include <QString>

namespace orvane {

/// The full path of a folder with files that lie beside the program and are the same for every
/// author, such as "catalogue"; it may be missing.
QString SharedFolder(const QString& name);

} // namespace orvane
