#pragma once

#include "core/progress.h"
#include "core/text.h"

#include <QDialog>
#include <QElapsedTimer>

class QProgressBar;

namespace orvane {

/// A box with a progress bar that appears when work has taken half a second. While it is visible no
/// other window can be used. Cancel, Escape and closing the box make GoOn() give false, which ends
/// the work; the box disappears when it is destroyed.
class ProgressBox : public QDialog, public Progress
{
public:
    /// The time counts from here; `words` say what is being done.
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
