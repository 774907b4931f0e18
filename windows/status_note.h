#pragma once

#include "core/text.h"

#include <QLabel>

class QTimer;

namespace orvane {

/// A line for short words on what was done. They disappear after five seconds; a screen reader
/// speaks them.
class StatusNote : public QLabel
{
    Q_OBJECT

public:
    explicit StatusNote(QWidget* parent = nullptr);

    /// Shows these words, in place of earlier ones, for five seconds.
    void Tell(TextView words);

private:
    QTimer* m_away;
};

} // namespace orvane
