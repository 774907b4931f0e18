#include "delivery/insert_panel.h"

#include "core/file_names.h"
#include "insertion/auto_insert.h"
#include "insertion/new_page.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/wait_cursor.h"

#include <QDir>
#include <QPushButton>

namespace orvane {

InsertPanel::InsertPanel(Workbench& bench, const CopyDesk& desk) : m_bench(bench), m_desk(desk)
{
    PageBuilder page(this);
    lblAutoStep1 = page.Note({}, "lblAutoStep1");
    txtFileName = new FileNameBox(bench.Settings, bench.Dialogs, this);
    txtFileName->setObjectName(QStringLiteral("txtFileName"));
    txtFileName->setAccessibleName(QStringLiteral("Web page"));
    connect(txtFileName, &QLineEdit::textChanged, this, [this] { m_isInserted = false; });
    cmdBrowse = page.Button("cmdBrowse", u"&Browse...");
    connect(cmdBrowse, &QPushButton::clicked, this, &InsertPanel::BrowseForPage);
    page.Row({}, {txtFileName, cmdBrowse});
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
}

void InsertPanel::Begin(bool isNewPage)
{
    lblAutoStep1->setText(
        ToQt(isNewPage ? TextView(u"1. Save your new Web page by pressing the 'Save as New Web "
                                  u"page' button below.")
                       : TextView(u"1. Find your Web page using the browse button below.")));
    for (QWidget* control : std::initializer_list<QWidget*>{
             lblAutoStep2, lblAutoStep3, txtFileName, cmdBrowse, cmdAutoInsert, lblBackupFile})
        control->setVisible(!isNewPage);
    cmdSaveWebPage->setVisible(isNewPage);
    if (!isNewPage)
        txtFileName->setFocus();
}

QPushButton* InsertPanel::Action(bool isNewPage) const
{
    if (isNewPage)
        return m_isSaved ? nullptr : cmdSaveWebPage;
    return m_isInserted ? nullptr : cmdAutoInsert;
}

void InsertPanel::BrowseForPage()
{
    const auto path = m_bench.Dialogs.OpenFile(ExistingPageRequest());
    if (!path)
        return;
    txtFileName->setText(ToQt(*path));
    lblBackupFile->setText(ToQt(Join({u"A backup copy of your Web page will be created and stored "
                                      u"as \"Backup of ",
                                      GetFileName(*path), u"\""})));
    cmdAutoInsert->setFocus();
}

void InsertPanel::InsertIntoPage()
{
    const Text name = FromQt(txtFileName->text());
    if (const auto complaint = CheckPageName(name))
        return emit Complained(*complaint);
    const Text page = PagePath(name, FromQt(QDir::currentPath()));
    const KeptPages kept{PathIn(m_bench.StateFolder, u"first-backups"), m_bench.Today()};
    switch (AutoInsert(m_bench.Files, m_bench.Dialogs, page, m_desk.Payload, kept)) {
    case AutoInsertion::NothingDone:
        return;
    case AutoInsertion::Manual:
        return emit ManualWanted();
    case AutoInsertion::Inserted:
        m_isInserted = true;
        m_desk.Report->PageWritten(page);
        // What is missing was told; the last page comes all the same.
        if (CopyFiles(FolderOf(page)))
            emit Delivered();
    }
}

void InsertPanel::SaveWebPage()
{
    const auto path = m_bench.Dialogs.SaveFile(NewPageRequest());
    if (!path)
        return;
    const Done saved = [&] {
        const WaitCursor wait;
        return SaveHTMLtoFile(m_bench.Files, *path, m_desk.Payload);
    }();
    if (const Fault* fault = FaultIn(saved))
        return m_bench.Dialogs.Say(Words(*fault));
    m_isSaved = true;
    m_desk.Report->PageWritten(*path);
    const Text folder(FolderOf(*path));
    const auto missing = CopyFiles(folder);
    if (!missing)
        return;
    if (missing->empty())
        emit Delivered();
    else
        emit FilesMissing(folder);
}

std::optional<MissingFiles> InsertPanel::CopyFiles(TextView folder)
{
    const auto copied = CopyRequiredFiles(m_desk, folder);
    if (const Fault* fault = FaultIn(copied)) {
        m_bench.Dialogs.Say(Words(*fault));
        return std::nullopt;
    }
    return ValueIn(copied);
}

} // namespace orvane
