#include "preview/page_pane_panel.h"

#include <QDialog>
#include <QShortcut>
#include <QShowEvent>
#include <QVBoxLayout>

#include <utility>

namespace orvane {

PagePanePanel::PagePanePanel(Workbench& bench, QWidget* pane) : m_bench(bench), m_pane(pane)
{
    (new QVBoxLayout(this))->setContentsMargins({});
    // The page would keep the key to itself.
    auto* escape = new QShortcut(QKeySequence::Cancel, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, [this] {
        if (auto* dialog = qobject_cast<QDialog*>(window()))
            dialog->reject();
    });
}

PagePanePanel::~PagePanePanel()
{
    GivePaneBack();
}

void PagePanePanel::Show(const LivePage& page)
{
    m_page = page;
    if (m_holdsPane)
        m_bench.Pane.ShowLive(page);
}

void PagePanePanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous() || std::exchange(m_holdsPane, true))
        return;
    m_bench.Pane.Pointed = [this](const PointedPlace& place) { emit Pointed(place); };
    if (m_pane != nullptr) {
        layout()->addWidget(m_pane);
        m_pane->show();
    }
    if (m_page)
        m_bench.Pane.ShowLive(*m_page);
}

void PagePanePanel::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        GivePaneBack();
}

void PagePanePanel::GivePaneBack()
{
    if (!std::exchange(m_holdsPane, false))
        return;
    m_bench.Pane.Clear();
    m_bench.Pane.Pointed = nullptr;
    if (m_pane == nullptr || m_pane->parentWidget() != this)
        return;
    m_pane->hide();
    m_pane->setParent(nullptr);
}

} // namespace orvane
