#pragma once

#include "core/complaint.h"
#include "core/workbench.h"
#include "delivery/delivery_report.h"
#include "delivery/editor_help.h"

#include <QWidget>

class QPushButton;

namespace orvane {

class LinkLabel;
class MultiLineBox;
class PageBuilder;

/// One of the three pages of the delivery wizard that show code to be copied by hand.
class CodePanel : public QWidget
{
    Q_OBJECT

public:
    /// What tells the three pages from one another.
    struct Words
    {
        ControlName HelpLabel;
        ControlName Box;
        ControlName CopyButton;
        TextView Part; ///< of the page that gets the code
        Text Example;  ///< empty for none
    };
    /// The copy button gives the code itself, not what the box shows of it.
    CodePanel(Workbench& bench, const Words& words, const Text& code, DeliveryReport& report);

    /// Shows, in front of the code, the lines of the page script with a copy button of their own.
    void ShowPageScript(bool isWanted);

    /// Offers help for the author's page editor.
    void OfferHelp(const EditorHelp& help);

private:
    /// A button that copies the code and selects it in its box.
    QPushButton* CopyButton(PageBuilder& page, ControlName name, TextView caption,
                            MultiLineBox* box, const Text& code, TextView part);
    void AddPageScript();

    Workbench& m_bench;
    DeliveryReport& m_report;
    int m_helpTopic = 0;
    MultiLineBox* m_box;
    QPushButton* m_copy;
    QWidget* m_pageScript; ///< empty until it is shown for the first time
    LinkLabel* lblNeedHelp;
};

} // namespace orvane
