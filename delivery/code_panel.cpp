#include "delivery/code_panel.h"

#include "delivery/delivery_flow.h"
#include "insertion/page_script.h"
#include "windows/multi_line_box.h"
#include "windows/page_builder.h"

#include <QLayout>
#include <QPushButton>

namespace orvane {

CodePanel::CodePanel(Workbench& bench, const Words& words, const Text& code, DeliveryReport& report)
    : m_bench(bench), m_report(report)
{
    PageBuilder page(this);
    m_pageScript = new QWidget(this);
    m_pageScript->hide();
    page.Row({}, {m_pageScript});
    m_box = page.CodeBox(words.Box, Join({words.Part, u" HTML code"}));
    m_box->SetWords(code);
    if (!words.Example.empty())
        page.Note(words.Example, "lblBODYAttribExample");
    lblNeedHelp = new LinkLabel(words.HelpLabel, {}, this);
    connect(lblNeedHelp, &LinkLabel::Followed, this,
            [this] { m_bench.Help.ShowTopic(m_helpTopic); });
    m_copy = CopyButton(page, words.CopyButton, u"C&opy", m_box, code, words.Part);
    page.Row({}, {lblNeedHelp, m_copy});
    lblPutByPointing = new LinkLabel("lblPutByPointing", putByPointing);
    connect(lblPutByPointing, &LinkLabel::Followed, this, &CodePanel::PointingWanted);
    page.Row({}, {lblPutByPointing});
    lblPutByPointing->hide();
}

QPushButton* CodePanel::CopyButton(PageBuilder& page, ControlName name, TextView caption,
                                   MultiLineBox* box, const Text& code, TextView part)
{
    QPushButton* copy = page.Button(name, caption);
    connect(copy, &QPushButton::clicked, this, [this, box, code, part] {
        box->selectAll();
        m_bench.Clipboard.Put(code);
        box->setFocus();
        m_report.CodeCopied(part);
    });
    return copy;
}

void CodePanel::AddPageScript()
{
    PageBuilder page(m_pageScript);
    m_pageScript->layout()->setContentsMargins({});
    page.Note(u"Add these lines first, in front of all special effects; once is enough for a Web "
              u"page:");
    MultiLineBox* box = page.CodeBox("txtPageScript", u"Page script HTML code");
    box->SetWords(LinesOfPageScript());
    box->setFixedHeight(box->fontMetrics().lineSpacing() * 5);
    page.Buttons({CopyButton(page, "cmdCopyPageScript", u"Cop&y", box, LinesOfPageScript(),
                             pageScriptPart)});
}

void CodePanel::ShowPageScript(bool isWanted)
{
    if (isWanted && m_pageScript->layout() == nullptr) {
        AddPageScript();
        SetReadingOrder(*window());
    }
    m_pageScript->setVisible(isWanted);
    // The lines may be all that goes into the HEAD.
    const bool isCodeShown = !isWanted || !m_box->Words().empty();
    m_box->setVisible(isCodeShown);
    m_copy->setVisible(isCodeShown);
}

void CodePanel::OfferPointing(bool isOffered)
{
    lblPutByPointing->setVisible(isOffered);
}

void CodePanel::OfferHelp(const EditorHelp& help)
{
    m_helpTopic = help.Topic;
    lblNeedHelp->SetWords(help.Caption);
}

} // namespace orvane
