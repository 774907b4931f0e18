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
    /// The object names and words in which the three pages differ.
    struct Words
    {
        ControlName HelpLabel;
        ControlName Box;
        ControlName CopyButton;
        TextView Part; ///< where in the page the code goes, such as "HEAD"
        Text Example;  ///< shown below the code; empty for none
    };
    /// The copy button copies `code` itself, not the text of the box, and notes it in the report.
    /// Bench and report must outlive the panel.
    CodePanel(Workbench& bench, const Words& words, const Text& code, DeliveryReport& report);

    /// Shows or hides, above the code, the lines that load the page script, with a copy button of
    /// their own. While they are shown, a code box without code is hidden.
    void ShowPageScript(bool isWanted);

    /// Shows or hides the link by which the author puts the effect in by pointing instead.
    void OfferPointing(bool isOffered);

    /// Sets the words of the help link and the topic that it opens.
    void OfferHelp(const EditorHelp& help);

signals:
    /// The author wants to point at the effect's place.
    void PointingWanted();

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
    QWidget* m_pageScript; ///< has no controls until it is shown for the first time
    LinkLabel* lblNeedHelp;
    LinkLabel* lblPutByPointing;
};

} // namespace orvane
