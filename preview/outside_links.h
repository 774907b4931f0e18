#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/shell.h"

namespace orvane {

/// Asks the author whether to open an address outside of the preview to which a page leads.
class OutsideLinks
{
public:
    OutsideLinks(Dialogs& dialogs, Shell& shell, FileStore& files)
        : m_dialogs(dialogs), m_shell(shell), m_files(files)
    {
    }

    /// Begins a new page, which may ask once without the author's doing.
    void StartPage() { m_hasLed = false; }

    /// Asks whether to open the address in the author's own program, and opens it on Yes; of a
    /// file, the author is only told its path, and of an empty address that it is not valid.
    /// `byAuthor` says that the author clicked or typed before: otherwise only the first address of
    /// a page is offered, so that a script cannot ask again and again. Ignored while a question is
    /// open.
    void Offer(TextView target, bool byAuthor);

private:
    Dialogs& m_dialogs;
    Shell& m_shell;
    FileStore& m_files;
    bool m_hasLed = false;
    bool m_isAsking = false;
};

} // namespace orvane
