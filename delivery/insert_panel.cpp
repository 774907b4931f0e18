#include "delivery/insert_panel.h"

#include "core/file_names.h"
#include "delivery/delivery_flow.h"
#include "insertion/auto_insert.h"
#include "insertion/new_page.h"
#include "insertion/page_script.h"
#include "services/page_requests.h"
#include "services/recent_files.h"
#include "windows/file_drop.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/recent_menu.h"
#include "windows/wait_cursor.h"

#include <QDir>
#include <QMenu>
#include <QPushButton>

namespace orvane {

InsertPanel::InsertPanel(Workbench& bench, const CopyJob& job) : m_bench(bench), m_job(job)
{
    PageBuilder page(this);
    lblAutoStep1 = page.Note({}, "lblAutoStep1");
    txtFileName = new FileNameBox(bench.Settings, bench.Dialogs, this);
    txtFileName->setObjectName(QStringLiteral("txtFileName"));
    txtFileName->setAccessibleName(QStringLiteral("Web page"));
    connect(txtFileName, &QLineEdit::textChanged, this, [this] { m_insertedInto.clear(); });
    cmdBrowse = page.Button("cmdBrowse", u"&Browse...");
    connect(cmdBrowse, &QPushButton::clicked, this, &InsertPanel::BrowseForPage);
    cmdRecentPages = page.Button("cmdRecentPages", u"&Recent pages");
    auto* recent = new QMenu(cmdRecentPages);
    OfferRecentFiles(*recent, recentPages, bench, [this](const Text& path) { TakePage(path); });
    cmdRecentPages->setMenu(recent);
    page.Row({}, {txtFileName, cmdBrowse, cmdRecentPages});
    lblPutByPointing = new LinkLabel("lblPutByPointing", putByPointing);
    connect(lblPutByPointing, &LinkLabel::Followed, this,
            [this] { emit PointingWanted(NamedPage()); });
    page.Row({}, {lblPutByPointing});
    lblPutByPointing->hide();
    connect(txtFileName, &QLineEdit::textChanged, lblPutByPointing, &QWidget::hide);
    cmdSaveWebPage = page.Button("cmdSaveWebPage", u"Save as New Web page");
    connect(cmdSaveWebPage, &QPushButton::clicked, this, &InsertPanel::SaveWebPage);
    lblAutoStep2 = page.Note(u"2. Insert the special effect by pressing the 'Auto-insert' button "
                             u"below.",
                             "lblAutoStep2");
    cmdAutoInsert = page.Button("cmdAutoInsert", u"&Auto-insert");
    connect(cmdAutoInsert, &QPushButton::clicked, this, &InsertPanel::InsertIntoPage);
    page.Buttons({cmdAutoInsert, cmdSaveWebPage});
    lblBackupFile = page.Note({}, "lblBackupFile");
    lblAutoStep3 =
        page.Note(u"3. Open your Web page in a browser to see the special effect.", "lblAutoStep3");
    page.Fill();
    // Else the box would take a page's address as a text.
    txtFileName->setAcceptDrops(false);
    connect(new FileDrop(*this, pageMasks, m_bench, 1), &FileDrop::Dropped, this,
            [this](const std::vector<Text>& pages) { TakePage(pages.front()); });
}

void InsertPanel::PageShown(bool isNewPage)
{
    setAcceptDrops(!isNewPage);
    lblAutoStep1->setText(
        ToQt(isNewPage ? TextView(u"1. Save your new Web page by pressing the 'Save as New Web "
                                  u"page' button below.")
                       : TextView(u"1. Find your Web page using the browse button below.")));
    for (QWidget* control : std::initializer_list<QWidget*>{
             lblAutoStep2, lblAutoStep3, txtFileName, cmdBrowse, cmdAutoInsert, lblBackupFile})
        control->setVisible(!isNewPage);
    cmdSaveWebPage->setVisible(isNewPage);
    lblPutByPointing->hide();
    const auto recent = RecentFiles(m_bench.Settings, m_bench.Files, recentPages);
    cmdRecentPages->setVisible(!isNewPage && !recent.empty());
    if (isNewPage)
        return;
    // The page that was worked on last, unless this effect went into one already.
    if (txtFileName->text().isEmpty() && m_job.Report.Page().empty() && !recent.empty())
        TakePage(recent.front());
    txtFileName->setFocus();
}

void InsertPanel::PutInto(const Text& page)
{
    TakePage(page);
    InsertIntoPage();
}

QPushButton* InsertPanel::DefaultButton(bool isNewPage) const
{
    if (isNewPage)
        return m_savedAs.empty() ? cmdSaveWebPage : nullptr;
    return m_insertedInto.empty() ? cmdAutoInsert : nullptr;
}

void InsertPanel::EffectTakenBack(TextView page)
{
    for (Text* written : {&m_insertedInto, &m_savedAs})
        if (*written == page)
            written->clear();
}

void InsertPanel::BrowseForPage()
{
    if (const auto path = m_bench.Dialogs.OpenFile(ExistingPageRequest()))
        TakePage(*path);
}

void InsertPanel::TakePage(const Text& path)
{
    txtFileName->setText(ToQt(path));
    lblBackupFile->setText(ToQt(Join({u"A backup copy of your Web page will be created and stored "
                                      u"as \"Backup of ",
                                      GetFileName(path), u"\""})));
    cmdAutoInsert->setFocus();
}

void InsertPanel::NotePage(const Text& page)
{
    m_job.Report.PageWritten(page);
    PutRecentFile(m_bench.Settings, recentPages, page);
}

void InsertPanel::InsertIntoPage()
{
    const Text name = FromQt(txtFileName->text());
    if (const auto complaint = CheckPageName(name))
        return emit Complained(*complaint);
    const Text page = NamedPage();
    const BackupsPlace place = BackupsPlaceIn(m_bench.StateFolder, m_bench.Today());
    switch (AutoInsert(m_bench.Files, m_bench.Dialogs, page, m_job.Payload, place)) {
    case AutoInsertion::NothingDone:
        return lblPutByPointing->setVisible(IsPastLimit(page));
    case AutoInsertion::Manual:
        return emit ManualWanted(page);
    case AutoInsertion::Inserted:
        m_insertedInto = page;
        NotePage(page);
        // What is missing was told; the last page comes all the same.
        if (CopyFiles(FolderOf(page)))
            emit Delivered();
    }
}

Text InsertPanel::NamedPage() const
{
    return PagePath(FromQt(txtFileName->text()), FromQt(QDir::currentPath()));
}

/// Whether the page is longer than auto-insertion reaches.
bool InsertPanel::IsPastLimit(const Text& page) const
{
    const auto bytes = m_bench.Files.Read(page);
    if (FaultIn(bytes))
        return false;
    const PageEdit edit = EditPageAndScript(ValueIn(bytes), m_job.Payload, [] { return true; });
    const Fault* fault = std::get_if<Fault>(&edit);
    return fault != nullptr && *fault == Fault::Overflow;
}

void InsertPanel::SaveWebPage()
{
    const auto path = m_bench.Dialogs.SaveFile(NewPageRequest());
    if (!path)
        return;
    const Done saved = [&] {
        const WaitCursor wait;
        return SaveHTMLtoFile(m_bench.Files, *path, m_job.Payload);
    }();
    if (const Fault* fault = FaultIn(saved))
        return m_bench.Dialogs.Say(Words(*fault));
    m_savedAs = *path;
    NotePage(*path);
    const Text folder(FolderOf(*path));
    const auto isAllThere = CopyFiles(folder);
    if (!isAllThere)
        return;
    if (*isAllThere)
        emit Delivered();
    else
        emit FilesMissing(folder);
}

std::optional<bool> InsertPanel::CopyFiles(TextView folder)
{
    const auto copied = CopyRequiredFiles(m_job, folder);
    const Fault* fault = FaultIn(copied);
    if (fault == nullptr)
        return ValueIn(copied).empty();
    if (*fault == Fault::Cancelled)
        return false;
    m_bench.Dialogs.Say(Words(*fault));
    return std::nullopt;
}

} // namespace orvane
