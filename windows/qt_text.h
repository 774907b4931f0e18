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

/// A multi-line box's text with CR LF between its lines.
inline Text FromQtLines(QString text)
{
    return FromQt(text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
                      .replace(u'\n', QLatin1String("\r\n")));
}

/// A text for a multi-line box.
inline QString ToQtLines(TextView text)
{
    return ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

} // namespace orvane
