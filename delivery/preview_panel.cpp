#include "delivery/preview_panel.h"

#include "core/file_names.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/shrinking.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalBlocker>

namespace orvane {

namespace {

constexpr int widestName = 24; ///< in characters

} // namespace

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
    cmdPutInto = page.Button("cmdPutInto", {});
    connect(cmdPutInto, &QPushButton::clicked, this, [this] { emit PutIntoWanted(m_offered); });
    page.Buttons({preview, refresh, cmdPutInto});
    OfferPage({});
}

void PreviewPanel::CheckPageScript()
{
    const QSignalBlocker blocker(chkRunsToday);
    chkRunsToday->setChecked(true);
}

void PreviewPanel::OfferPage(const Text& path)
{
    m_offered = path;
    cmdPutInto->setVisible(!path.empty());
    QString name = fontMetrics().elidedText(ToQt(GetFileName(path)), Qt::ElideMiddle,
                                            widestName * fontMetrics().averageCharWidth());
    cmdPutInto->setText(QStringLiteral("P&ut it into ") + name.replace(u'&', QStringLiteral("&&")));
    cmdPutInto->setToolTip(ToQt(path));
}

PreviewPanel::~PreviewPanel()
{
    if (m_pane == nullptr)
        return;
    m_pane->hide();
    m_pane->setParent(nullptr);
}

} // namespace orvane
