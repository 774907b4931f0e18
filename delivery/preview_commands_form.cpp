#include "core/file_names.h"
#include "delivery/editor_help.h"
#include "delivery/preview_form.h"
#include "insertion/auto_insert.h"
#include "insertion/new_page.h"
#include "windows/qt_text.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QRadioButton>

// What the commands on the delivery wizard's pages do; the way from page to page stands in
// preview_form.cpp.
namespace orvane {

namespace {

/// The own topic of the three pages that show code to copy.
constexpr int manualPagesTopic = 50;

} // namespace

void PreviewForm::BrowseForPage()
{
    const auto path = m_bench.Dialogs.OpenFile(ExistingPageRequest());
    if (!path)
        return;
    txtFileName->setText(ToQt(*path));
    lblBackupFile->setText(ToQt(Join({u"A backup copy of your Web page will be created and stored "
                                      u"as \"Backup of ",
                                      GetFileName(*path), u"\""})));
}

void PreviewForm::InsertIntoPage()
{
    const Text name = FromQt(txtFileName->text());
    if (const auto complaint = CheckPageName(name))
        return Report(*complaint);
    const Text page = PagePath(name, FromQt(QDir::currentPath()));
    const KeptPages kept{PathIn(m_bench.StateFolder, u"first-backups"), m_bench.Today()};
    switch (AutoInsert(m_bench.Files, m_bench.Dialogs, page, m_payload, kept)) {
    case AutoInsertion::NothingDone:
        return;
    case AutoInsertion::Manual:
        optInsertMode[1]->setChecked(true);
        m_step.PageStep = 3;
        Next();
        return;
    case AutoInsertion::Inserted:
        // What is missing was told; the last page comes all the same.
        if (CopyFiles(FolderOf(page)))
            GoOnTo(9);
    }
}

void PreviewForm::SaveWebPage()
{
    const auto path = m_bench.Dialogs.SaveFile(NewPageRequest());
    if (!path)
        return;
    const Done saved = SaveHTMLtoFile(*path);
    if (const Fault* fault = FaultIn(saved)) {
        m_bench.Dialogs.Say(Words(*fault));
        return;
    }
    const Text folder(FolderOf(*path));
    const auto missing = CopyFiles(folder);
    if (!missing)
        return;
    // The page with the files then opens on the folder of the new page.
    if (!missing->empty())
        m_publishPanel->FindMissing(PublishMode::MissingFiles, *missing, folder);
    GoOnTo(missing->empty() ? 9 : 8);
}

std::optional<MissingFiles> PreviewForm::CopyFiles(TextView folder)
{
    const auto copied = CopyRequiredFiles(Desk(), folder);
    if (const Fault* fault = FaultIn(copied)) {
        m_bench.Dialogs.Say(Words(*fault));
        return std::nullopt;
    }
    return ValueIn(copied);
}

CopyDesk PreviewForm::Desk() const
{
    return {m_payload, m_bench.Core.ProgramFolder, m_bench.Files, m_bench.Dialogs};
}

void PreviewForm::GoOnTo(std::int16_t page)
{
    ++m_step.StepNumber;
    m_step.PageStep = page;
    ChangePage(m_step);
}

void PreviewForm::CopyCode(QPlainTextEdit* box)
{
    box->selectAll();
    m_bench.Clipboard.Put(FromQtLines(box->toPlainText()));
    box->setFocus();
}

void PreviewForm::OfferEditorHelp()
{
    const EditorHelp help = setWebPageEditor(m_bench.Settings.Get(u"Misc", u"HTMLEditor", u""),
                                             m_payload.ScriptedHelp, manualPagesTopic);
    m_editorTopic = help.Topic;
    for (LinkLabel* label : lblNeedHelp)
        label->SetWords(help.Caption);
}

} // namespace orvane
