#include "preview/qt_quiet_line.h"

#include "preview/qt_status_line.h"
#include "windows/link_label.h"

#include <QHBoxLayout>

namespace orvane {

QtQuietLine::QtQuietLine()
    : lblQuiet(new QtStatusLine), lblRunIt(new LinkLabel("lblRunIt", u"Run it"))
{
    lblQuiet->setObjectName("lblQuiet");
    connect(lblRunIt, &LinkLabel::Followed, this, &QtQuietLine::RunWanted);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins({});
    line->addWidget(lblQuiet, 1);
    line->addWidget(lblRunIt);
    hide();
}

void QtQuietLine::Tell(TextView words, bool canRun)
{
    lblQuiet->SetStatus(words);
    lblRunIt->setVisible(canRun);
    show();
}

} // namespace orvane
