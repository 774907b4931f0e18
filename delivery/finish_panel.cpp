#include "delivery/finish_panel.h"

#include "delivery/files_to_upload.h"
#include "insertion/page_backups.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QListWidget>
#include <QPushButton>

namespace orvane {

FinishPanel::FinishPanel(Workbench& bench, const FinishedPayload& payload,
                         const DeliveryReport& report)
    : m_bench(bench), m_payload(payload), m_report(report)
{
    PageBuilder page(this);
    lblReport = page.Note({}, "lblReport");
    cmdOpenPage = page.Button("cmdOpenPage", u"&Open page");
    connect(cmdOpenPage, &QPushButton::clicked, this,
            [this, &bench] { bench.Shell.OpenWithShell(m_report.Page()); });
    cmdOpenFolder = page.Button("cmdOpenFolder", u"Open &folder");
    connect(cmdOpenFolder, &QPushButton::clicked, this,
            [this, &bench] { bench.Shell.OpenWithShell(m_report.Folder()); });
    cmdBringBack = page.Button("cmdBringBack", u"&Bring back earlier version...");
    connect(cmdBringBack, &QPushButton::clicked, this,
            [this] { emit BringBackWanted(m_report.Page()); });
    page.Buttons({cmdOpenPage, cmdOpenFolder, cmdBringBack});
    lstFilesToUpload =
        page.ListBox("lstFilesToUpload",
                     u"If you wish to upload your special effect to the Web, you must "
                     u"also upload the following files:",
                     {});
    ListFiles(FilesToUpload(payload));
    auto* link = new LinkLabel("lblClickHere", u"click here.");
    connect(link, &LinkLabel::Followed, this,
            [&bench] { bench.Help.ShowTopic(help_topics::transfer); });
    page.Row(u"If you need help transferring your special effect to the Web, ", {link});
}

void FinishPanel::PageShown()
{
    QString lines;
    for (const Text& line : m_report.Lines())
        lines += (lines.isEmpty() ? QString() : QStringLiteral("\n")) + ToQt(line);
    // Long paths go on in the next line.
    lblReport->setText(lines.replace(u'/', QStringLiteral("/\u200B")));
    cmdOpenPage->setVisible(!m_report.Page().empty());
    cmdOpenFolder->setVisible(!m_report.Folder().empty());
    const KeptPagesPlace kept = KeptPagesIn(m_bench.StateFolder, m_bench.Today());
    cmdBringBack->setVisible(!m_report.Page().empty() &&
                             !BackupsOf(m_bench.Files, kept, m_report.Page()).empty());
    lstFilesToUpload->clear();
    ListFiles(FilesToUpload(m_payload));
    ListFiles(ListedFiles(m_payload));
}

void FinishPanel::ListFiles(const std::vector<Text>& names)
{
    for (const Text& name : names)
        lstFilesToUpload->addItem(ToQt(name));
}

} // namespace orvane
