#pragma once

#include "core/text.h"

#include <QString>

namespace orvane {

/// The same characters as the toolkit's text type.
inline QString ToQt(TextView text)
{
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// The same characters as the program's text type.
inline Text FromQt(const QString& text)
{
    return Text(reinterpret_cast<const char16_t*>(text.utf16()),
                static_cast<std::size_t>(text.size()));
}

/// A text for a label or a message box, with the toolkit's line ends.
inline QString ToQtLines(TextView text)
{
    return ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

} // namespace orvane
