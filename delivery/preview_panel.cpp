#include "delivery/preview_panel.h"

#include "windows/page_builder.h"
#include "windows/shrinking.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalBlocker>

namespace orvane {

PreviewPanel::PreviewPanel(QWidget* pane, const TodaysBrowsers& today) : m_pane(pane)
{
    PageBuilder page(this);
    if (pane == nullptr)
        pane = new QWidget;
    FillShrinking(page, pane, 8);
    pane->show();
    page.Note(today.Sentence, "lblRunsToday")->setVisible(!today.Sentence.empty());
    chkRunsToday = page.CheckBox("chkRunsToday", u"&Make it run in today's browsers",
                                 u"Lets your Web page use Orvane's page script, orvane.js");
    chkRunsToday->setChecked(today.WantsPageScript);
    chkRunsToday->setVisible(today.OffersScript);
    connect(chkRunsToday, &QCheckBox::toggled, this, &PreviewPanel::PageScriptChosen);
    QPushButton* preview = page.Button("cmdPreview1", u"Preview in &Browser");
    connect(preview, &QPushButton::clicked, this,
            [this] { emit PreviewWanted(PreviewMode::Browser1); });
    QPushButton* refresh = page.Button("cmdRefresh", u"&Refresh");
    connect(refresh, &QPushButton::clicked, this,
            [this] { emit PreviewWanted(PreviewMode::Inline); });
    page.Buttons({preview, refresh});
}

void PreviewPanel::CheckPageScript()
{
    const QSignalBlocker blocker(chkRunsToday);
    chkRunsToday->setChecked(true);
}

PreviewPanel::~PreviewPanel()
{
    if (m_pane == nullptr)
        return;
    m_pane->hide();
    m_pane->setParent(nullptr);
}

} // namespace orvane
