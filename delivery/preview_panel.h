#pragma once

#include "preview/preview_page.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QPushButton;

namespace orvane {

/// The delivery wizard's page that shows the effect.
class PreviewPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the page tells about today's browsers, and its check box for the page script.
    struct TodaysBrowsers
    {
        Text Sentence;        ///< empty for none
        bool WantsPageScript; ///< whether the box is checked at first
        bool OffersScript;    ///< whether the box is there
    };
    /// `pane` is the preview pane's widget, or null. The panel shows it while it exists, without
    /// owning it.
    PreviewPanel(QWidget* pane, const TodaysBrowsers& today);

    /// Hides the pane and takes it out of this panel, if it still exists.
    ~PreviewPanel() override;

    /// Checks the box for the page script, without PageScriptChosen().
    void CheckPageScript();

    /// Offers to put the effect into the page with this full path; no more when it is empty.
    void OfferPage(const Text& path);

signals:
    /// The author wants to see the effect, in the pane or in a browser.
    void PreviewWanted(orvane::PreviewMode mode);
    /// The author checked the box for the page script, or unchecked it.
    void PageScriptChosen(bool isWanted);
    /// The author wants the effect in the offered page.
    void PutIntoWanted(const orvane::Text& page);

private:
    QPointer<QWidget> m_pane;
    Text m_offered;
    QCheckBox* chkRunsToday;
    QPushButton* cmdPutInto;
};

} // namespace orvane
