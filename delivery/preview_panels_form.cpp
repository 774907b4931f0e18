#include "delivery/ftp_panel.h"
#include "delivery/preview_form.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

// What each page of the delivery wizard looks like; what it does stands in preview_form.cpp.
namespace orvane {

namespace {

QString PanelName(int index)
{
    return MemberName("Picture1", index);
}

constexpr std::array<ControlName, 3> needHelpNames = {"lblNeedHelp(0)", "lblNeedHelp(1)",
                                                      "lblNeedHelp(2)"};

} // namespace

void PreviewForm::AddPreviewPanel()
{
    PageBuilder page(AddPanel(PanelName(0)));
    if (m_pane != nullptr) {
        page.Fill(m_pane);
        m_pane->show();
    } else {
        page.Fill();
    }
    QPushButton* preview = page.Button("cmdPreview1", u"Preview in &Browser");
    connect(preview, &QPushButton::clicked, this, [this] { Preview(PreviewMode::Browser1); });
    QPushButton* refresh = page.Button("cmdRefresh", u"&Refresh");
    connect(refresh, &QPushButton::clicked, this, [this] { Preview(PreviewMode::Inline); });
    page.Buttons({preview, refresh});
}

void PreviewForm::AddEditorPanel()
{
    PageBuilder page(AddPanel(PanelName(1)));
    lstHTMLEditors = page.ListBox("lstHTMLEditors", {}, htmlEditors);
    lstHTMLEditors->setAccessibleName(QStringLiteral("Web page editors"));
    connect(lstHTMLEditors, &QListWidget::itemActivated, this, [this] { Next(); });
}

void PreviewForm::AddMethodPanel()
{
    PageBuilder page(AddPanel(PanelName(2)));
    for (std::size_t i = 0; i < insertModes.size(); ++i)
        optInsertMode[i] = page.Option("optInsertMode", static_cast<int>(i),
                                       insertModes[i].Caption, insertModes[i].Explanation);
    optInsertMode[0]->setChecked(true);
    page.Fill();
}

void PreviewForm::AddPagePanel()
{
    PageBuilder page(AddPanel(PanelName(3)));
    lblAutoStep1 = page.Note({}, "lblAutoStep1");
    txtFileName = new FileNameBox(m_bench.Settings, m_bench.Dialogs);
    txtFileName->setObjectName(QStringLiteral("txtFileName"));
    txtFileName->setAccessibleName(QStringLiteral("Web page"));
    cmdBrowse = page.Button("cmdBrowse", u"&Browse...");
    connect(cmdBrowse, &QPushButton::clicked, this, &PreviewForm::BrowseForPage);
    page.Row({}, {txtFileName, cmdBrowse});
    cmdSaveWebPage = page.Button("cmdSaveWebPage", u"Save as New Web page");
    connect(cmdSaveWebPage, &QPushButton::clicked, this, &PreviewForm::SaveWebPage);
    lblAutoStep2 = page.Note(u"2. Insert the special effect by pressing the 'Auto-insert' button "
                             u"below.",
                             "lblAutoStep2");
    cmdAutoInsert = page.Button("cmdAutoInsert", u"&Auto-insert");
    connect(cmdAutoInsert, &QPushButton::clicked, this, &PreviewForm::InsertIntoPage);
    page.Buttons({cmdAutoInsert, cmdSaveWebPage});
    lblBackupFile = page.Note({}, "lblBackupFile");
    lblAutoStep3 = page.Note(u"3. Open your Web page in a browser to see the special effect.",
                             "lblAutoStep3");
    page.Fill();
}

void PreviewForm::AddCodePanel(const CodePanel& words, TextView code, TextView example)
{
    PageBuilder page(AddPanel(PanelName(words.Panel)));
    QPlainTextEdit* box = page.CodeBox(words.Box, words.AccessibleName);
    box->setPlainText(ToQtLines(code));
    QPushButton* copy = page.Button(words.CopyButton, u"C&opy");
    connect(copy, &QPushButton::clicked, this, [this, box] { CopyCode(box); });
    if (!example.empty())
        page.Note(example, "lblBODYAttribExample");
    const int index = words.Panel - 4;
    auto* help = new LinkLabel(needHelpNames[static_cast<std::size_t>(index)], {});
    connect(help, &LinkLabel::Followed, this, [this] { m_bench.Help.ShowTopic(m_editorTopic); });
    lblNeedHelp[static_cast<std::size_t>(index)] = help;
    page.Row({}, {help, copy});
}

void PreviewForm::AddCodePanels()
{
    AddCodePanel({4, "txtHEADHTML", "cmdCopyHEADHTML", u"HEAD HTML code"},
                 m_payload.Effect.HEADHTML, {});
    AddCodePanel({5, "txtBODYHTML", "cmdcopyBODYHTML", u"BODY HTML code"},
                 m_payload.Effect.BODYHTML, {});
    AddCodePanel({6, "txtBODYAttribute", "cmdCopyBODYAttrib", u"BODY attribute HTML code"},
                 m_payload.BODYAttribute,
                 Join({u"For example:  <BODY", m_payload.BODYAttribute, u">"}));
}

void PreviewForm::AddPublishPanel()
{
    m_publishPanel = new PublishPanel(Desk(), m_windows.MakeFolder);
    PageBuilder(AddPanel(PanelName(7))).Fill(m_publishPanel);
    connect(m_publishPanel, &PublishPanel::ControlsChanged, this,
            [this](const PublishControls& controls) {
                cmdPrevious->setVisible(controls.cmdPrevious);
                cmdNext->setVisible(controls.cmdNext);
            });
    connect(m_publishPanel, &PublishPanel::CopyingDone, this,
            [this] { FinishCopying(DoneCopying()); });
    connect(m_publishPanel, &PublishPanel::PreviewWanted, this,
            [this] { FinishCopying(PreviewAfterCopying()); });
    PageBuilder(AddPanel(PanelName(8))).Fill(new FtpPanel(m_bench.Settings));
}

void PreviewForm::AddFinishPanel()
{
    PageBuilder page(AddPanel(PanelName(9)));
    lstFilesToUpload =
        page.ListBox("lstFilesToUpload",
                     u"If you wish to upload your special effect to the Web, you must "
                     u"also upload the following files:",
                     {});
    for (const Text& name : FilesToUpload(m_payload))
        lstFilesToUpload->addItem(ToQt(name));
    auto* link = new LinkLabel("lblClickHere", u"click here.");
    connect(link, &LinkLabel::Followed, this,
            [this] { m_bench.Help.ShowTopic(help_topics::transfer); });
    page.Row(u"If you need help transferring your special effect to the Web, ", {link});
}

} // namespace orvane
