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

/// The base class of all step-by-step windows: heading, sub-heading, a stack of pages of which one
/// is shown, and a row of buttons with the help button at its left. A page that does not fit
/// scrolls.
class WizardFrame : public QDialog
{
    Q_OBJECT

public:
    WizardFrame(ControlName name, Workbench& bench, QWidget* parent);

    /// Puts a part at the right of everything, as a SidePane that is folded by the button
    /// "Preview". Called once, when the buttons are there and the window was not shown yet.
    void AddSide(QWidget* side);

    /// Puts a button directly behind the help button. Called when the buttons are there.
    void AddBesideHelp(QPushButton* button);

    /// Shows short words beside the buttons, on what was done, for five seconds.
    void Tell(TextView words) { m_note->Tell(words); }

protected:
    /// Which buttons the window has besides the help button.
    enum class Buttons
    {
        Paged,   ///< Previous, Next, Cancel
        OnePage, ///< Done, Cancel
    };

    /// Adds the row of buttons below the pages and makes the window large enough for the pages
    /// added so far; called once. Whoever adds pages later calls SetReadingOrder() after that.
    void AddButtons(Buttons buttons, ControlName helpName = "cmdClickHereForHelp");

    /// Adds a page after the last one; the first page of all is shown at once.
    QWidget* AddPanel(const QString& name = {});

    /// The same, and a builder for the rows of the page.
    PageBuilder AddPage() { return PageBuilder(AddPanel(), &m_bench); }

    /// Shows the page with that index, counted from 0. Offers are shown above the first page only.
    void ShowPanel(int index);
    int CurrentPanel() const;
    int PanelCount() const;
    QWidget* PanelAt(int index) const;
    void SetHeading(TextView heading, TextView subHeading);
    void SetHelpTopic(int topic) { m_helpTopic = topic; }

    /// Adds a link above the pages that offers something. It is hidden; the caller shows it when
    /// there is something to offer.
    LinkLabel* AddOffer(ControlName name, TextView words);

    /// Shows the complaint's words and gives its control the focus.
    void ShowComplaint(const Complaint& complaint)
    {
        orvane::ShowComplaint(*this, m_bench.Dialogs, complaint);
    }

    /// Called for "Next" in a paged window and for "Done" in one with a single page.
    virtual void Next() = 0;

    /// Called for "Previous".
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
    QHBoxLayout* m_buttons = nullptr;
    StatusNote* m_note;
    int m_helpTopic = 0;
};

} // namespace orvane
