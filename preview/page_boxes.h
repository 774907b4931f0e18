#pragma once

#include "core/dialogs.h"

namespace orvane {

/// The boxes that a previewed page shows, one after the other, until the author stops them.
class PageBoxes
{
public:
    explicit PageBoxes(Dialogs& dialogs) : m_dialogs(dialogs) {}

    /// Forgets the boxes of the page before.
    void StartPage();

    /// Shows the box and gives the author's answer. From the second box of a page on the author may
    /// stop them; after that, and while another box is open, the box counts as dismissed at once.
    PageBoxReply Answer(PageBox box);

private:
    Dialogs& m_dialogs;
    bool m_shownBefore = false;
    bool m_stopped = false;
    bool m_open = false;
};

} // namespace orvane
