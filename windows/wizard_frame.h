#pragma once

#include "core/complaint.h"
#include "core/workbench.h"
#include "windows/page_builder.h"
#include "windows/status_note.h"

#include <QDialog>

class QHBoxLayout;
class QPushButton;
class QStackedWidget;

namespace orvane {

/// What all step-by-step windows have: heading, sub-heading, pages one above the other, and a row
/// of buttons with the help at its left. A page that does not fit scrolls.
class WizardFrame : public QDialog
{
    Q_OBJECT

public:
    WizardFrame(ControlName name, Workbench& bench, QWidget* parent);

protected:
    enum class Buttons
    {
        Paged,   ///< Previous, Next, Cancel
        OnePage, ///< Done, Cancel
    };

    /// Adds the row of buttons below the pages; called once, behind the last page.
    void AddButtons(Buttons buttons, ControlName helpName = "cmdClickHereForHelp");

    /// Adds a page behind those that are there; the first one is shown.
    QWidget* AddPanel(const QString& name = {});
    PageBuilder AddPage() { return PageBuilder(AddPanel(), &m_bench); }

    void ShowPanel(int index);
    int CurrentPanel() const;
    int PanelCount() const;
    QWidget* PanelAt(int index) const;
    void SetHeading(TextView heading, TextView subHeading);
    void SetHelpTopic(int topic) { m_helpTopic = topic; }

    /// Adds a line above the pages that offers something, hidden until it is shown.
    LinkLabel* AddOffer(ControlName name, TextView words);

    /// Shows the complaint's words and gives its control the focus.
    void Report(const Complaint& complaint) { orvane::Report(*this, m_bench.Dialogs, complaint); }

    /// Shows short words on what was done beside the buttons, for some seconds.
    void Tell(TextView words) { m_note->Tell(words); }

    /// "Next" of a paged window, "Done" of one with a single page.
    virtual void Next() = 0;
    virtual void Previous() {}

    Workbench& m_bench;
    QPushButton* cmdPrevious = nullptr;
    QPushButton* cmdNext = nullptr; ///< named `cmdDone` in a window with one page
    QPushButton* cmdCancel = nullptr;

private:
    void FitToRows();
    QPushButton* AddButton(ControlName name, TextView caption, QHBoxLayout* line);

    QLabel* lblHeading;
    QLabel* lblSubHeading;
    QWidget* m_offers; ///< shown above the first page alone
    QStackedWidget* m_pages;
    StatusNote* m_note;
    int m_helpTopic = 0;
};

} // namespace orvane
