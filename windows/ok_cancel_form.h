#pragma once

#include "core/complaint.h"
#include "core/workbench.h"
#include "windows/hint_lines.h"
#include "windows/page_builder.h"

#include <QDialog>

#include <functional>

namespace orvane {

/// The base class of the small windows: rows, with OK and Cancel below them. Escape cancels, F1
/// opens the help topic.
class OkCancelForm : public QDialog
{
    Q_OBJECT

public:
    OkCancelForm(ControlName name, TextView title, int helpTopic, Workbench& bench,
                 QWidget* parent);

    /// Shows the window over its parent, without waiting, and calls `then` if OK closes it. Expects
    /// a window made by `new`, which deletes itself when it closes.
    void Begin(std::function<void()> then);

protected:
    /// Where the rows go.
    PageBuilder Rows() { return m_rows; }

    /// Adds OK and Cancel below the rows; called last in the constructor.
    void AddButtons(TextView okCaption = u"&OK");

    /// Shows the complaint's words and gives its control the focus.
    void ShowComplaint(const Complaint& complaint)
    {
        orvane::ShowComplaint(*this, m_bench.Dialogs, complaint);
    }

    /// Shows these hints below their fields and takes away all others.
    void ShowHints(const std::vector<Hint>& hints) { m_hints.Show(hints); }

    /// Called when OK is pressed: closes the window by accept(), or reports what is wrong.
    virtual void Accept() = 0;

    Workbench& m_bench;

private:
    PageBuilder m_rows;
    HintLines m_hints{*this};
};

} // namespace orvane
