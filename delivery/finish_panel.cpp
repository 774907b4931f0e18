#include "delivery/finish_panel.h"

#include "core/file_names.h"
#include "delivery/files_to_upload.h"
#include "insertion/page_backups.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/shrinking.h"

#include <QListWidget>
#include <QPushButton>

#include <utility>

namespace orvane {

namespace {

/// What a row of the list of page files stands for.
constexpr int nameRole = Qt::UserRole; ///< empty but for a file that is not there
constexpr int folderRole = Qt::UserRole + 1;

} // namespace

FinishPanel::FinishPanel(Workbench& bench, const CopyJob& job, PickedFileFinder pickedFile)
    : m_bench(bench), m_job(job), m_pickedFile(std::move(pickedFile))
{
    PageBuilder page(this);
    lblReport = page.Note({}, "lblReport");
    cmdRunsToday = page.Button("cmdRunsToday", u"&Make it run in today's browsers",
                               u"Lets your Web page use Orvane's page script, orvane.js");
    connect(cmdRunsToday, &QPushButton::clicked, this,
            [this] { emit PageScriptWanted(PagesWithoutScript(m_job.Payload, m_pages)); });
    cmdPutIntoAnother =
        page.Button("cmdPutIntoAnother", u"P&ut it into another page...",
                    u"Looks for a Web page and puts the same special effect into it, too");
    connect(cmdPutIntoAnother, &QPushButton::clicked, this, [this] { emit AnotherPageWanted(); });
    cmdOpenPage = page.Button("cmdOpenPage", u"&Open page");
    connect(cmdOpenPage, &QPushButton::clicked, this,
            [this] { m_bench.Shell.OpenWithShell(m_job.Report.Page()); });
    cmdOpenFolder = page.Button("cmdOpenFolder", u"Open &folder");
    connect(cmdOpenFolder, &QPushButton::clicked, this,
            [this] { m_bench.Shell.OpenWithShell(m_job.Report.Folder()); });
    cmdBringBack = page.Button("cmdBringBack", u"&Bring back earlier version...");
    connect(cmdBringBack, &QPushButton::clicked, this,
            [this] { emit BringBackWanted(m_job.Report.Page()); });
    cmdPageEffects = page.Button("cmdPageEffects", u"&Effects on the page...");
    connect(cmdPageEffects, &QPushButton::clicked, this,
            [this] { emit PageEffectsWanted(m_job.Report.Page()); });
    page.Buttons({cmdRunsToday, cmdPutIntoAnother});
    page.Buttons({cmdOpenPage, cmdOpenFolder, cmdBringBack, cmdPageEffects});
    AddPageFiles(page);
    AddUploads(page);
}

void FinishPanel::AddPageFiles(PageBuilder& page)
{
    auto* part = new QWidget(this);
    PageBuilder rows(part);
    part->layout()->setContentsMargins({});
    lstPageFiles = rows.ListBox("lstPageFiles", u"Files that your Web page names:", {});
    connect(lstPageFiles, &QListWidget::itemSelectionChanged, this, &FinishPanel::UpdateCopy);
    cmdCopyHere = rows.Button("cmdCopyHere", u"Cop&y it here...");
    connect(cmdCopyHere, &QPushButton::clicked, this, &FinishPanel::CopySelected);
    rows.Buttons({cmdCopyHere});
    m_pageFiles = FillShrinking(page, part, 9);
}

void FinishPanel::AddUploads(PageBuilder& page)
{
    auto* part = new QWidget(this);
    PageBuilder rows(part);
    part->layout()->setContentsMargins({});
    lstFilesToUpload =
        rows.ListBox("lstFilesToUpload",
                     u"If you wish to upload your special effect to the Web, you must "
                     u"also upload the following files:",
                     {});
    ListFiles(FilesToUpload(m_job.Payload));
    auto* link = new LinkLabel("lblClickHere", u"click here.");
    connect(link, &LinkLabel::Followed, this,
            [this] { m_bench.Help.ShowTopic(help_topics::transfer); });
    rows.Row(u"If you need help transferring your special effect to the Web, ", {link});
    m_uploads = FillShrinking(page, part, 9);
}

void FinishPanel::PageShown()
{
    const DeliveryReport& report = m_job.Report;
    m_pages = LookAtPages(report, m_job.Payload, m_bench.Files);
    QString lines = ToQt(Listed(ReportLines(report, m_job.Payload, m_pages), u"\n"));
    // Long paths go on in the next line.
    lblReport->setText(lines.replace(u'/', QStringLiteral("/\u200B")));
    cmdRunsToday->setVisible(!PagesWithoutScript(m_job.Payload, m_pages).empty());
    cmdPutIntoAnother->setVisible(report.HasDelivered());
    cmdOpenPage->setVisible(!report.Page().empty());
    cmdOpenFolder->setVisible(!report.Folder().empty());
    cmdPageEffects->setVisible(!report.Page().empty());
    const BackupsPlace place = BackupsPlaceIn(m_bench.StateFolder, m_bench.Today());
    cmdBringBack->setVisible(!report.Page().empty() &&
                             !BackupsOf(m_bench.Files, place, report.Page()).empty());
    ListPageFiles();
    // Who took the effect back has nothing to upload.
    m_uploads->setVisible(report.PagesBroughtBack().empty() || report.HasDelivered());
    lstFilesToUpload->clear();
    ListFiles(FilesToUpload(m_job.Payload));
    ListFiles(ListedFiles(m_job.Payload));
}

void FinishPanel::ListPageFiles()
{
    lstPageFiles->clear();
    QListWidgetItem* missing = nullptr;
    for (const DeliveredPage& page : m_pages) {
        if (page.Files.empty())
            continue;
        const TextView folder = FolderOf(page.Path);
        auto* head = new QListWidgetItem(
            page.Path.empty() ? QStringLiteral("Beside your Web page:")
                              : ToQt(page.IsPublished ? folder : TextView(page.Path)),
            lstPageFiles);
        head->setFlags(Qt::ItemIsEnabled);
        for (const PageFile& file : page.Files) {
            const TextView state = page.Path.empty() ? u""
                                   : file.IsThere    ? u": there"
                                                     : u": not there";
            auto* row = new QListWidgetItem(ToQt(Join({file.Name, state})), lstPageFiles);
            if (page.Path.empty() || file.IsThere)
                continue;
            row->setData(nameRole, ToQt(file.Name));
            row->setData(folderRole, ToQt(folder));
            if (missing == nullptr)
                missing = row;
        }
    }
    m_pageFiles->setVisible(lstPageFiles->count() > 0);
    cmdCopyHere->setVisible(missing != nullptr);
    lstPageFiles->setCurrentItem(missing);
    UpdateCopy();
}

void FinishPanel::UpdateCopy()
{
    const auto rows = lstPageFiles->selectedItems();
    cmdCopyHere->setEnabled(!rows.isEmpty() && !rows.first()->data(nameRole).toString().isEmpty());
}

void FinishPanel::CopySelected()
{
    const QListWidgetItem* row = lstPageFiles->selectedItems().value(0);
    if (row == nullptr)
        return;
    const Text name = FromQt(row->data(nameRole).toString());
    const Text folder = FromQt(row->data(folderRole).toString());
    Text source = m_job.SourceOf(name);
    if (!m_bench.Files.FileExists(source))
        source = m_pickedFile ? m_pickedFile(Text(GetFileName(name))).value_or(Text()) : Text();
    if (!m_bench.Files.FileExists(source)) {
        const auto picked = m_bench.Dialogs.OpenFile({.Title = Join({u"Find ", name}),
                                                      .Filter = u"All Files (*.*)|*.*",
                                                      .Purpose = FolderPurpose::Images});
        if (!picked)
            return;
        source = *picked;
    }
    CopyHere(m_job, source, folder, name);
    PageShown();
}

void FinishPanel::ListFiles(const std::vector<Text>& names)
{
    for (const Text& name : names)
        lstFilesToUpload->addItem(ToQt(name));
}

} // namespace orvane
