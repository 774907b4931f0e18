#include "delivery/bring_back_form.h"

#include "services/page_requests.h"
#include "services/recent_files.h"
#include "windows/plain_tip.h"
#include "windows/recent_menu.h"

#include <QDateTime>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

namespace orvane {

namespace {

QString DateOf(const PageBackup& backup)
{
    return QDateTime::fromMSecsSinceEpoch(backup.Facts.Written / 1'000'000)
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QTreeWidget* MakeTable()
{
    auto* table = new QTreeWidget;
    table->setObjectName(QStringLiteral("lstBackups"));
    table->setAccessibleName(QStringLiteral("Backups, newest first"));
    table->setHeaderLabels({QStringLiteral("Kept on"), QStringLiteral("Size"),
                            QStringLiteral("Compared with the page as it is"),
                            QStringLiteral("Kept")});
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return table;
}

} // namespace

BringBackForm::BringBackForm(Workbench& bench, TextView page, QWidget* parent)
    : OkCancelForm("BringBack", u"Bring back a page", help_topics::backups, bench, parent),
      m_page(page),
      lstBackups(MakeTable())
{
    PageBuilder rows = Rows();
    cmdBrowseForPage = rows.Button("cmdBrowseForPage", u"B&rowse for page...");
    connect(cmdBrowseForPage, &QPushButton::clicked, this, &BringBackForm::BrowseForPage);
    auto* cmdRecentPages = rows.Button("cmdRecentPages", u"R&ecent pages");
    auto* recent = new QMenu(cmdRecentPages);
    // A page that is gone may come back as well.
    OfferPaths(
        *recent, [&bench] { return RecentFilesAndGone(bench.Settings, recentPages); },
        [this](const Text& path) {
            m_page = path;
            ShowBackups();
        });
    cmdRecentPages->setMenu(recent);
    txtPage = new QLineEdit;
    txtPage->setObjectName(QStringLiteral("txtPage"));
    txtPage->setReadOnly(true);
    rows.Row(u"Web page:", {txtPage, cmdBrowseForPage, cmdRecentPages});
    lblBackups = rows.Note({}, "lblBackups");
    rows.Fill(lstBackups);
    AddButtons(u"&Bring back");
    setMinimumSize(560, 360);
    resize(680, 400);
    ShowBackups();
}

void BringBackForm::BrowseForPage()
{
    if (const auto path = m_bench.Dialogs.OpenFile(ExistingPageRequest())) {
        m_page = PageOfBackup(m_bench.Files, Place(), *path);
        ShowBackups();
    }
}

void BringBackForm::ShowBackups()
{
    txtPage->setText(ToQt(m_page));
    m_backups =
        m_page.empty() ? std::vector<PageBackup>() : BackupsOf(m_bench.Files, Place(), m_page);
    const auto page = m_bench.Files.Facts(m_page);
    lstBackups->clear();
    for (const PageBackup& backup : m_backups) {
        const Text difference = page ? CompareSizes(backup.Facts.Size, page->Size) : Text();
        const QString size = QStringLiteral("%1 bytes").arg(backup.Facts.Size);
        const bool isBeside = FolderOf(backup.Path) == FolderOf(m_page);
        auto* row =
            new QTreeWidgetItem(lstBackups, {DateOf(backup), size, ToQt(difference),
                                             isBeside ? QStringLiteral("beside the page")
                                                      : QStringLiteral("in Orvane's own folder")});
        row->setToolTip(3, PlainTip(backup.Path));
    }
    TextView words = u"Choose the backup that the page shall hold again.  The page as it is now is "
                     u"kept as a backup first.";
    if (m_page.empty())
        words =
            u"Find the Web page of which an earlier version shall come back.  Of a page that is "
            u"gone, find its backup.";
    else if (m_backups.empty())
        words = u"Orvane has no backup of this Web page.";
    else if (!page)
        words = u"This Web page is gone.  Choose the backup from which it shall come back.";
    lblBackups->setText(ToQt(words));
    lstBackups->setVisible(!m_backups.empty());
    lstBackups->setCurrentItem(lstBackups->topLevelItem(0));
    QWidget* first = cmdBrowseForPage;
    if (!m_backups.empty())
        first = lstBackups;
    first->setFocus();
}

void BringBackForm::Accept()
{
    const int row = lstBackups->indexOfTopLevelItem(lstBackups->currentItem());
    if (row < 0)
        return ShowComplaint({u"Please choose a page that has a backup.", "cmdBrowseForPage"});
    const PageBackup& backup = m_backups.at(static_cast<std::size_t>(row));
    const Text date = FromQt(DateOf(backup));
    const bool isThere = m_bench.Files.FileExists(m_page);
    if (isThere && !m_bench.Dialogs.Ask(Join(
                       {u"Do you want to replace ", m_page, u" by its backup of ", date, u"?"})))
        return;
    if (!orvane::BringBack(m_bench.Files, m_bench.Dialogs, m_page, backup.Path, Place()))
        return ShowBackups();
    m_bench.Dialogs.Say(
        Join({u"Your Web page holds the backup of ", date, u" again.",
              isThere ? u"  The page as it was before is among its backups now." : u""}));
    m_broughtBack = m_page;
    accept();
}

BackupsPlace BringBackForm::Place() const
{
    return BackupsPlaceIn(m_bench.StateFolder, m_bench.Today());
}

} // namespace orvane
