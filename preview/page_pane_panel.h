#pragma once

#include "core/workbench.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace orvane {

/// Shows live pages in the preview pane, which it holds while it is in sight.
class PagePanePanel : public QWidget
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane, or null; the panel shows it without owning
    /// it. Both must outlive the panel.
    PagePanePanel(Workbench& bench, QWidget* pane);
    ~PagePanePanel() override;

    /// Shows the page, as soon as the panel is in sight.
    void Show(const LivePage& page);

signals:
    /// The author pointed to a place in the page.
    void Pointed(const PointedPlace& place);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void GivePaneBack();

    Workbench& m_bench;
    QPointer<QWidget> m_pane;
    bool m_holdsPane = false;
    std::optional<LivePage> m_page;
};

} // namespace orvane
