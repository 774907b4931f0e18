#pragma once

#include "windows/qt_text.h"

#include <QTextDocument>

namespace orvane {

/// The words of a tool tip that shows them as they are. A tool tip takes a path such as
/// "/home/ann/<b>new</b>" for markup and leaves characters of it out.
inline QString PlainTip(TextView words)
{
    const QString tip = ToQt(words);
    return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip, Qt::WhiteSpaceNoWrap) : tip;
}

} // namespace orvane
