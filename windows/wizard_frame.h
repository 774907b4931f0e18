#pragma once

#include "core/complaint.h"
#include "core/workbench.h"
#include "windows/page_builder.h"

#include <QDialog>

class QHBoxLayout;
class QPushButton;
class QStackedWidget;

namespace orvane {

/// A size on screen, from the twips in which the windows were measured (15 to a pixel).
QSize FromTwips(int width, int height);

/// What all step-by-step windows have: heading, sub-heading, pages one above the other, and a row
/// of buttons with the help at its left.
class WizardFrame : public QDialog
{
    Q_OBJECT

public:
    WizardFrame(const QString& name, Workbench& bench, QWidget* parent);

protected:
    enum class Buttons
    {
        Paged,   ///< Previous, Next, Cancel
        OnePage, ///< Done, Cancel
    };

    /// Adds the row of buttons below the pages; called once, behind the last page, so that Tab
    /// reaches them last.
    void AddButtons(Buttons buttons,
                    const QString& helpName = QStringLiteral("cmdClickHereForHelp"));

    /// Adds a page behind those that are there; the first one is shown.
    QWidget* AddPanel(const QString& name = {});
    PageBuilder AddPage() { return PageBuilder(AddPanel()); }

    void ShowPanel(int index);
    int CurrentPanel() const;
    void SetHeading(TextView heading, TextView subHeading);
    void SetHelpTopic(int topic) { m_helpTopic = topic; }

    /// Shows the complaint's words and gives its control the focus.
    void Report(const Complaint& complaint);

    /// "Next" of a paged window, "Done" of one with a single page.
    virtual void Next() = 0;
    virtual void Previous() {}

    Workbench& m_bench;
    QPushButton* cmdPrevious = nullptr;
    QPushButton* cmdNext = nullptr; ///< named `cmdDone` in a window with one page
    QPushButton* cmdCancel = nullptr;

private:
    QPushButton* MakeButton(const QString& name, TextView caption, QHBoxLayout* line);

    QLabel* lblHeading;
    QLabel* lblSubHeading;
    QStackedWidget* m_pages;
    int m_helpTopic = 0;
};

} // namespace orvane
