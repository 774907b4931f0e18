#pragma once

#include "core/text.h"

#include <QLabel>

class QTimer;

namespace orvane {

/// A line for short words on what was done. They go away after some seconds; a screen reader says
/// them.
class StatusNote : public QLabel
{
    Q_OBJECT

public:
    explicit StatusNote(QWidget* parent = nullptr);

    void Tell(TextView words);

private:
    QTimer* m_away;
};

} // namespace orvane
