#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/shell.h"

namespace orvane {

/// Where a previewed page leads outside, the author decides.
class OutsideLinks
{
public:
    OutsideLinks(Dialogs& dialogs, Shell& shell, FileStore& files)
        : m_dialogs(dialogs), m_shell(shell), m_files(files)
    {
    }

    /// Forgets what the page before has led to.
    void StartPage() { m_hasLed = false; }

    /// Asks whether the address is to be opened, and opens it; of a file it is only said where it
    /// lies. A script may lead away again and again: the author is asked once, and after each act.
    void Offer(TextView target, bool byAuthor);

private:
    Dialogs& m_dialogs;
    Shell& m_shell;
    FileStore& m_files;
    bool m_hasLed = false;
    bool m_isAsking = false;
};

} // namespace orvane
