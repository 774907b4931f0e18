#include "preview/qt_pane_note.h"

#include "windows/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

QtPaneNote::QtPaneNote() : lblPreviewNote(new QLabel), cmdTryAgain(new QPushButton("&Try again"))
{
    lblPreviewNote->setObjectName("lblPreviewNote");
    lblPreviewNote->setTextFormat(Qt::PlainText);
    lblPreviewNote->setWordWrap(true);
    cmdTryAgain->setObjectName("cmdTryAgain");
    connect(cmdTryAgain, &QPushButton::clicked, this, &QtPaneNote::TryAgainWanted);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdTryAgain);
    buttons->addStretch();
    auto* rows = new QVBoxLayout(this);
    rows->addStretch();
    rows->addWidget(lblPreviewNote);
    rows->addLayout(buttons);
    rows->addStretch();
}

void QtPaneNote::Tell(TextView words, bool canTryAgain)
{
    lblPreviewNote->setText(ToQtLines(words));
    cmdTryAgain->setVisible(canTryAgain);
}

} // namespace orvane
