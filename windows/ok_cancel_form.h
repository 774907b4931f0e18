#pragma once

#include "core/complaint.h"
#include "core/workbench.h"
#include "windows/page_builder.h"

#include <QDialog>

#include <functional>

namespace orvane {

/// The frame of the small windows: rows, and OK and Cancel below them. Escape cancels, F1 opens the
/// help.
class OkCancelForm : public QDialog
{
    Q_OBJECT

public:
    OkCancelForm(ControlName name, TextView title, int helpTopic, Workbench& bench,
                 QWidget* parent);

    /// Shows the window over its parent and calls `then` once OK was taken; the window deletes
    /// itself when it closes.
    void Begin(std::function<void()> then);

protected:
    /// Where the rows go.
    PageBuilder Rows() { return m_rows; }

    /// Adds OK and Cancel below the rows; called last.
    void AddButtons(TextView okCaption = u"&OK");

    void Report(const Complaint& complaint) { orvane::Report(*this, m_bench.Dialogs, complaint); }

    /// OK was pressed: closes the window by accept(), or reports what is wrong.
    virtual void Take() = 0;

    Workbench& m_bench;

private:
    PageBuilder m_rows;
};

} // namespace orvane
