#include "windows/paged_form.h"

#include "windows/qt_text.h"

#include <QPushButton>

namespace orvane {

PageBuilder PagedForm::AddPage(const WizardPage& words)
{
    m_words.push_back(words);
    if (m_words.size() == 1)
        SetHeading(words.Heading, words.SubHeading);
    return WizardForm::AddPage();
}

int PagedForm::PageAfter(int page) const
{
    return page + 1 < PanelCount() ? page + 1 : -1;
}

void PagedForm::GoTo(int page)
{
    const WizardPage& words = WordsOf(page);
    SetHeading(words.Heading, words.SubHeading);
    if (cmdPrevious != nullptr) {
        cmdPrevious->setEnabled(page > 0);
        cmdNext->setText(PageAfter(page) < 0 ? QStringLiteral("&Done")
                                             : QStringLiteral("&Next >>"));
    }
    ShowPanel(page);
    auto* control =
        words.Focus.empty() ? FirstControl(*PanelAt(page)) : findChild<QWidget*>(ToQt(words.Focus));
    if (control != nullptr)
        control->setFocus(Qt::OtherFocusReason);
}

} // namespace orvane
