#pragma once

#include "core/dialogs.h"

namespace orvane {

/// Shows the boxes of a previewed page one at a time, until the author stops them.
class PageBoxes
{
public:
    explicit PageBoxes(Dialogs& dialogs) : m_dialogs(dialogs) {}

    /// Begins a new page, whose boxes are not stopped.
    void StartPage();

    /// Shows the box and gives the author's answer. From the second box of a page on the author may
    /// stop all further ones. A box is dismissed without being shown once they are stopped, and
    /// while another box is open.
    PageBoxReply Answer(PageBox box);

private:
    Dialogs& m_dialogs;
    bool m_shownBefore = false;
    bool m_stopped = false;
    bool m_open = false;
};

} // namespace orvane
