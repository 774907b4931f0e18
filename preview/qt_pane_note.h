#pragma once

#include "core/text.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace orvane {

/// What stands in place of a page that cannot be shown: why, and what the author can do.
class QtPaneNote : public QWidget
{
    Q_OBJECT

public:
    QtPaneNote();

    /// Shows these words, with the button where trying again may help.
    void Tell(TextView words, bool canTryAgain);

signals:
    /// The author clicked "Try again".
    void TryAgainWanted();

private:
    QLabel* lblPreviewNote;
    QPushButton* cmdTryAgain;
};

} // namespace orvane
