#pragma once

#include "preview/preview_page.h"

#include <QPointer>
#include <QWidget>

namespace orvane {

/// The delivery wizard's page that shows the effect.
class PreviewPanel : public QWidget
{
    Q_OBJECT

public:
    /// What the page says and offers about today's browsers.
    struct TodaysBrowsers
    {
        TextView Sentence;
        bool RunsToday; ///< whether the page script is wanted already
    };
    /// `pane` is borrowed while this panel lives, and may be null.
    PreviewPanel(QWidget* pane, TodaysBrowsers today);

    /// Gives the pane back.
    ~PreviewPanel() override;

signals:
    void PreviewWanted(orvane::PreviewMode mode);
    /// The author wants the page script from now on, or no longer.
    void RunsTodayChosen(bool isWanted);

private:
    QPointer<QWidget> m_pane;
};

} // namespace orvane
