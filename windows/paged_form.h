#pragma once

#include "windows/wizard_form.h"

#include <vector>

namespace orvane {

/// The words above a wizard page, and where its focus goes.
struct WizardPage
{
    TextView Heading;
    TextView SubHeading;
    ControlName Focus = {}; ///< gets the focus when the page is shown; empty: the first control
};

/// A wizard of one or more pages: keeps their words and goes from page to page.
class PagedForm : public WizardForm
{
    Q_OBJECT

public:
    using WizardForm::WizardForm;

protected:
    /// Adds a wizard page; pages are counted from 0.
    PageBuilder AddPage(const WizardPage& words);

    /// Shows a page with its words; "Next" reads "&Done" on a last page. Expects an existing page;
    /// throws std::out_of_range for any other.
    void GoTo(int page);
    int Page() const { return CurrentPanel(); }
    const WizardPage& WordsOf(int page) const { return m_words.at(static_cast<std::size_t>(page)); }

    /// The page that "Next" leads to from this one; -1 when the wizard ends with it.
    virtual int PageAfter(int page) const;

    /// The page that "Previous" leads to from this one.
    virtual int PageBefore(int page) const { return page - 1; }

    void Previous() override { GoTo(PageBefore(Page())); }

private:
    std::vector<WizardPage> m_words;
};

} // namespace orvane
