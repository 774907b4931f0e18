#pragma once

#include "core/text.h"

#include <QWidget>

namespace orvane {

class LinkLabel;
class QtStatusLine;

/// The line that says what a page wanted and was not given, with a link that runs the page with it.
class QtQuietLine : public QWidget
{
    Q_OBJECT

public:
    QtQuietLine();

    /// Shows the line with these words; without the link where that is no use.
    void Tell(TextView words, bool canRun = true);

signals:
    /// The author followed the link.
    void RunWanted();

private:
    QtStatusLine* lblQuiet;
    LinkLabel* lblRunIt;
};

} // namespace orvane
