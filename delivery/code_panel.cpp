#include "delivery/code_panel.h"

#include "windows/multi_line_box.h"
#include "windows/page_builder.h"

#include <QPushButton>

namespace orvane {

CodePanel::CodePanel(Workbench& bench, const Words& words, const Text& code, DeliveryReport& report)
{
    PageBuilder page(this);
    MultiLineBox* box = page.CodeBox(words.Box, Join({words.Part, u" HTML code"}));
    box->SetWords(code);
    if (!words.Example.empty())
        page.Note(words.Example, "lblBODYAttribExample");
    lblNeedHelp = new LinkLabel(words.HelpLabel, {}, this);
    connect(lblNeedHelp, &LinkLabel::Followed, this,
            [this, &bench] { bench.Help.ShowTopic(m_helpTopic); });
    QPushButton* copy = page.Button(words.CopyButton, u"C&opy");
    connect(copy, &QPushButton::clicked, this, [&, box, code, part = words.Part] {
        box->selectAll();
        bench.Clipboard.Put(code);
        box->setFocus();
        report.CodeCopied(part);
    });
    page.Row({}, {lblNeedHelp, copy});
}

void CodePanel::OfferHelp(const EditorHelp& help)
{
    m_helpTopic = help.Topic;
    lblNeedHelp->SetWords(help.Caption);
}

} // namespace orvane
