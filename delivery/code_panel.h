#pragma once

#include "core/complaint.h"
#include "core/workbench.h"
#include "delivery/delivery_report.h"
#include "delivery/editor_help.h"

#include <QWidget>

namespace orvane {

class LinkLabel;

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

    /// Offers help for the author's page editor.
    void OfferHelp(const EditorHelp& help);

private:
    int m_helpTopic = 0;
    LinkLabel* lblNeedHelp;
};

} // namespace orvane
