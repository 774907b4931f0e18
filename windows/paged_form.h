#pragma once

#include "windows/wizard_form.h"

#include <vector>

namespace orvane {

/// What stands around a wizard page.
struct WizardPage
{
    TextView Heading;
    TextView SubHeading;
    ControlName Focus =
        {}; ///< the control that has the focus when the page comes; empty: the first
};

/// A wizard of one or more pages: it knows their words and which page comes next.
class PagedForm : public WizardForm
{
    Q_OBJECT

public:
    using WizardForm::WizardForm;

protected:
    /// Adds a wizard page; pages are counted from 0.
    PageBuilder AddPage(const WizardPage& words);

    /// Shows a page with its words; the button to the next one reads "&Done" on a last page.
    void GoTo(int page);
    int Page() const { return CurrentPanel(); }
    const WizardPage& WordsOf(int page) const { return m_words.at(static_cast<std::size_t>(page)); }

    /// The page behind, or -1 when the wizard ends there; and the page before.
    virtual int PageBehind(int page) const;
    virtual int PageBefore(int page) const { return page - 1; }

    void Previous() override { GoTo(PageBefore(Page())); }

private:
    std::vector<WizardPage> m_words;
};

} // namespace orvane
