#pragma once

#include "core/progress.h"
#include "core/text.h"

#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace orvane {

/// Shows how far a work is once it has taken half a second. While it stands there no other window
/// can be used; Cancel, Escape and the window's frame end the work.
class ProgressBox : public QDialog, public Progress
{
public:
    ProgressBox(TextView words, QWidget* parent);

    bool GoOn(std::uint64_t done, std::uint64_t total) override;

    void reject() override { m_isCancelled = true; }

private:
    void AddControls();

    const Text m_words;
    QElapsedTimer m_time;
    QProgressBar* m_bar = nullptr;
    bool m_isCancelled = false;
};

} // namespace orvane
